// Outcomes of queries, as short texts that read well in expectations.
#pragma once

#include "BaseUtilities/Exceptions.h"
#include "BaseUtilities/StringConvert.h"
#include "VendorInfoFile.h"
#include "support/FieldText.h"

#include <array>
#include <cstddef>
#include <regex>
#include <stdexcept>
#include <string>
#include <tuple>
#include <vector>

namespace testsupport {

using Slots = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

inline std::string ResultText(std::size_t count) { return std::to_string(count); }

inline std::string ResultText(const CVIFField& field) { return FieldText(field); }

inline std::string ResultText(const std::tuple<CVIFField, bool>& result) {
  return (std::get<1>(result) ? "true " : "false ") + FieldText(std::get<0>(result));
}

inline std::string ResultText(const VifFieldList& list) {
  if (!list) return "<no list>";
  std::string text;
  for (const CVIFField& field : *list) text.append("[").append(FieldText(field)).append("]");
  return text;
}

/// The result of a query, or the exception that it throws.
template <typename Query>
std::string OutcomeOf(const Query& query) {
  try {
    return ResultText(query());
  } catch (const CZoRunTimeException& error) {
    return std::string("CZoRunTimeException: ") + error.what();
  } catch (const std::out_of_range& error) {
    return std::string("std::out_of_range: ") + error.what();
  } catch (const std::regex_error& error) {
    return "std::regex_error: " + std::to_string(error.code());
  }
}

/// The outcomes of a query in its four forms: with a narrow and a wide pattern, each with separate slots and with an
/// array of slots.
/// \param ask runs the query with the arguments of any form
template <typename Ask>
std::vector<std::string> OutcomesOfAllForms(const std::string& pattern, const Slots& slots, const Ask& ask) {
  const char* narrow = pattern.c_str();
  const std::wstring wideText = Utf8ToUtf16(pattern);
  const wchar_t* wide = wideText.c_str();
  return {OutcomeOf([&] { return ask(narrow, slots[0], slots[1], slots[2]); }),
          OutcomeOf([&] { return ask(narrow, slots); }),
          OutcomeOf([&] { return ask(wide, slots[0], slots[1], slots[2]); }),
          OutcomeOf([&] { return ask(wide, slots); })};
}

/// The same for `GetFirstFields` and `GetFirstUniqueField`, which take two slots and have two forms.
template <typename Ask>
std::vector<std::string> OutcomesOfFirstForms(const std::string& pattern, const VifIndex& index2,
                                              const VifIndex& index3, const Ask& ask) {
  const char* narrow = pattern.c_str();
  const std::wstring wideText = Utf8ToUtf16(pattern);
  const wchar_t* wide = wideText.c_str();
  return {OutcomeOf([&] { return ask(narrow, index2, index3); }), OutcomeOf([&] { return ask(wide, index2, index3); })};
}

// The queries of an object as functions of their arguments, whatever the form.

inline auto Count(const CVendorInfoFile& vif) {
  return [&vif](const auto&... arguments) { return vif.Count(arguments...); };
}
inline auto GetFields(const CVendorInfoFile& vif) {
  return [&vif](const auto&... arguments) { return vif.GetFields(arguments...); };
}
inline auto GetUniqueField(const CVendorInfoFile& vif) {
  return [&vif](const auto&... arguments) { return vif.GetUniqueField(arguments...); };
}
inline auto GetSingleField(const CVendorInfoFile& vif) {
  return [&vif](const auto&... arguments) { return vif.GetSingleField(arguments...); };
}
inline auto GetFirstFields(const CVendorInfoFile& vif) {
  return [&vif](const auto&... arguments) { return vif.GetFirstFields(arguments...); };
}
inline auto GetFirstUniqueField(const CVendorInfoFile& vif) {
  return [&vif](const auto&... arguments) { return vif.GetFirstUniqueField(arguments...); };
}

/// Loads that many text files without declarations; each is a component.
inline void AppendEmptyComponents(CVendorInfoFile& vif, std::size_t count, const std::string& emptyTextFile) {
  for (; count > 0; --count) vif.Append(emptyTextFile.c_str());
}

}  // namespace testsupport

#include "KnownNames.h"

#include "Spelling.h"

#include <analysis/Text.h>

#include <BaseUtilities/StringConvert.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <limits>
#include <map>
#include <optional>
#include <regex>

namespace vifanalysis {

namespace {

using NameTable = std::map<std::string, const VifFieldDef*, std::less<>>;

/// No name of the format is longer, with its indexes or without.
constexpr std::size_t kLongestName = 100;

std::string WithoutDigits(std::string_view name) {
  std::string rest;
  std::copy_if(name.begin(), name.end(), std::back_inserter(rest), [](char c) { return !IsDigit(c); });
  return rest;
}

const NameTable& CanonicalNames() {
  static const NameTable table = [] {
    NameTable names;
    for (const VifFieldDef& definition : VifFieldDefs::GetVifFieldDefs()) {
      names.emplace(Utf16ToUtf8(definition.name), &definition);
    }
    return names;
  }();
  return table;
}

/// The definitions by their names without digits, which a written name shares whatever its indexes are.
const std::multimap<std::string, const VifFieldDef*, std::less<>>& NamesWithoutDigits() {
  static const std::multimap<std::string, const VifFieldDef*, std::less<>> table = [] {
    std::multimap<std::string, const VifFieldDef*, std::less<>> names;
    for (const auto& [name, definition] : CanonicalNames()) names.emplace(WithoutDigits(name), definition);
    return names;
  }();
  return table;
}

/// The spellings of all definitions, in alphabetical order of the names.
const std::vector<std::string>& Spellings() {
  static const std::vector<std::string> spellings = [] {
    std::vector<std::string> all;
    for (const auto& [name, definition] : CanonicalNames()) all.push_back(SpellingOf(*definition));
    return all;
  }();
  return spellings;
}

std::string WithoutMarks(std::string spelling) {
  std::erase(spelling, kIndexMark);
  return spelling;
}

}  // namespace

const VifFieldDef* FindDefinition(std::string_view canonicalName) {
  const auto found = CanonicalNames().find(canonicalName);
  return found != CanonicalNames().end() ? found->second : nullptr;
}

const VifFieldDef* FindDefinitionOfWritten(std::string_view writtenName) {
  if (writtenName.size() > kLongestName) return nullptr;
  const std::wstring wide = Utf8ToUtf16(writtenName);
  const auto [begin, end] = NamesWithoutDigits().equal_range(WithoutDigits(writtenName));
  const auto found =
      std::find_if(begin, end, [&](const auto& entry) { return std::regex_match(wide, entry.second->pattern); });
  return found != end ? found->second : nullptr;
}

std::string SpellingOf(const VifFieldDef& definition) {
  std::string spelling = Utf16ToUtf8(definition.name);
  std::wcmatch match;
  std::regex_match(definition.name, match, definition.pattern);  // finds empty indexes where they belong
  for (std::size_t i = match.size(); i > 1; --i) {
    if (match[i - 1].matched) spelling.insert(static_cast<std::size_t>(match.position(i - 1)), 1, kIndexMark);
  }
  return spelling;
}

std::vector<std::string> NearestNames(std::string_view writtenName, NameStyle style) {
  const std::string dollar = writtenName.starts_with('$') ? "$" : "";
  const std::string_view written = writtenName.substr(dollar.size());
  std::vector<std::string> nearest;
  if (written.size() > kLongestName) return nearest;
  unsigned fewest = std::numeric_limits<unsigned>::max();
  for (const std::string& spelling : Spellings()) {
    const std::optional<Respelling> respelling = Respell(written, spelling);
    if (!respelling || respelling->typos > fewest) continue;
    if (respelling->typos < fewest) nearest.clear();
    fewest = respelling->typos;
    nearest.push_back(dollar + (style == NameStyle::Text ? respelling->name : WithoutMarks(spelling)));
  }
  return nearest;
}

std::string PlaceText(const VifFieldDef& definition) {
  std::string text;
  for (const EVifLocation location : definition.locations) {
    if (location == eVifLocUnset) continue;
    if (!text.empty()) text += " \u00B7 ";
    text += GetVifLocInfo(location).name;
  }
  return text;
}

}  // namespace vifanalysis

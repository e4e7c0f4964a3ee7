// Calls the C interface with arbitrary files: everything that it gives is UTF-8, and its functions agree with each
// other.
//
// The first line is a query, SLOTS|PATTERN. Then follow two files, the second after a line "%%". A file that begins
// with "<" is an XML VIF, any other a text VIF.
#include "Checks.h"
#include "Input.h"
#include "vif.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using fuzz::Require;

template <auto FreeHandle>
struct Freeing {
  template <typename Handle>
  void operator()(Handle* handle) const {
    FreeHandle(handle);
  }
};

using File = std::unique_ptr<vif_file, Freeing<vif_file_free>>;
using Findings = std::unique_ptr<vif_findings, Freeing<vif_findings_free>>;

void RequireText(const char* text) { Require(text != nullptr && fuzz::IsUtf8(text), "a text is UTF-8"); }

void RequireTexts(std::initializer_list<const char*> texts) {
  for (const char* text : texts) RequireText(text);
}

template <typename Structure>
Structure Sized() {
  Structure structure = {};
  structure.size = sizeof(structure);
  return structure;
}

/// Expects a function that makes a text to make one in UTF-8.
template <typename Make>
void RequireDocument(const Make& make) {
  vif_text* text = nullptr;
  Require(make(&text) == VIF_OK, "there is a document about anything");
  Require(vif_text_size(text) > 0 && fuzz::IsUtf8({vif_text_data(text), vif_text_size(text)}), "a document is UTF-8");
  vif_text_free(text);
}

/// Cancels the loading of a file at its first, second, ... report, until it ends before that.
void Cancel(std::string_view content, const char* name) {
  constexpr std::uint64_t enough = 4;
  for (std::uint64_t left = 0; left < enough; ++left) {
    std::uint64_t calls = left;
    auto progress = Sized<vif_progress>();
    progress.user = &calls;
    progress.function = [](void* user, std::uint64_t, std::uint64_t) -> std::int32_t {
      return (*static_cast<std::uint64_t*>(user))-- == 0 ? 1 : 0;
    };
    vif_file* made = nullptr;
    Require(vif_file_make(&made, nullptr) == VIF_OK, "a file can be made");
    const File file(made);
    const vif_status status = vif_file_load_bytes(made, content.data(), content.size(), name, &progress, nullptr);
    if (status != VIF_ERROR_CANCELLED) return;
    Require(vif_file_field_count(made) == 0, "nothing is loaded when loading is cancelled");
  }
}

/// One file of the input.
class CInputFile {
 public:
  explicit CInputFile(std::string_view content)
      : m_content(content), m_name(content.starts_with('<') ? "a.xml" : "a.txt"), m_file(Load()), m_findings(Check()) {}

  const vif_file* Get() const { return m_file.get(); }
  const vif_findings* GetFindings() const { return m_findings.get(); }
  void CancelLoading() const { Cancel(m_content, m_name); }

  void CheckDocuments() const {
    RequireDocument([&](vif_text** text) { return vif_file_json(Get(), &m_name, 1, text, nullptr); });
    RequireDocument([&](vif_text** text) { return vif_file_csv(Get(), text, nullptr); });
    RequireDocument([&](vif_text** text) { return vif_findings_json(GetFindings(), m_name, text, nullptr); });
  }

  void CheckSourceLine(std::uint64_t line, std::uint64_t column) const {
    vif_text* before = nullptr;
    vif_text* after = nullptr;
    Require(vif_source_line(m_content.data(), m_content.size(), line, column, &before, &after, nullptr) == VIF_OK,
            "any place has a line");
    RequireTexts({vif_text_data(before), vif_text_data(after)});
    vif_text_free(before);
    vif_text_free(after);
  }

 private:
  File Load() const {
    vif_file* file = nullptr;
    Require(vif_file_make(&file, nullptr) == VIF_OK, "a file can be made");
    File owner(file);
    vif_error* error = nullptr;
    const vif_status status = vif_file_load_bytes(file, m_content.data(), m_content.size(), m_name, nullptr, &error);
    Require((status == VIF_OK) == (error == nullptr), "there is an error when loading fails");
    if (error != nullptr) CheckError(error, status);
    vif_error_free(error);
    CheckFields(file);
    return owner;
  }

  static void CheckError(const vif_error* error, vif_status status) {
    Require(status == VIF_ERROR_INVALID || status == VIF_ERROR_SCHEMA, "a file can only be invalid");
    Require(vif_error_status(error) == status, "an error has the status of the call");
    RequireText(vif_error_message(error));
    Require((vif_error_reason_count(error) != 0) == (status == VIF_ERROR_INVALID), "an invalid file has reasons");
    for (std::size_t i = 0; i < vif_error_reason_count(error); ++i) {
      auto reason = Sized<vif_reason>();
      Require(vif_error_reason(error, i, &reason) == VIF_OK, "a reason can be read");
      RequireTexts({reason.element, reason.text});
    }
  }

  static void CheckFields(const vif_file* file) {
    for (std::size_t i = 0; i < vif_file_field_count(file); ++i) {
      auto field = Sized<vif_field>();
      Require(vif_file_field(file, i, &field) == VIF_OK, "a field can be read");
      RequireTexts({field.name, field.value, field.description});
      constexpr std::size_t enough = 20;  // each takes time that grows with the number of fields
      if (i < enough) CheckMeaning(file, i);
    }
  }

  static void CheckMeaning(const vif_file* file, std::size_t position) {
    auto quantity = Sized<vif_quantity>();
    const vif_status status = vif_file_quantity(file, position, &quantity, nullptr);
    Require(status == VIF_OK || status == VIF_ERROR_NOT_FOUND, "a field has an amount or none");
    if (status == VIF_OK) RequireText(quantity.unit);
    vif_text* meaning = nullptr;
    Require(vif_file_meaning(file, position, &meaning, nullptr, nullptr) == VIF_OK, "any field may have a meaning");
    RequireText(vif_text_data(meaning));
    vif_text_free(meaning);
  }

  Findings Check() const {
    auto options = Sized<vif_check_options>();
    options.notes = 1;
    vif_findings* findings = nullptr;
    Require(
        vif_check_bytes(m_content.data(), m_content.size(), m_name, &options, nullptr, &findings, nullptr) == VIF_OK,
        "anything can be checked");
    Findings owner(findings);
    for (std::size_t i = 0; i < vif_findings_count(findings); ++i) {
      auto finding = Sized<vif_finding>();
      Require(vif_findings_get(findings, i, &finding) == VIF_OK, "a finding can be read");
      RequireTexts({finding.code, finding.element, finding.message});
      constexpr std::size_t enough = 20;  // each takes time that grows with the file
      if (i < enough) CheckSourceLine(finding.line, finding.column);
      auto rule = Sized<vif_rule>();
      Require(vif_find_rule(finding.code, &rule, nullptr) == VIF_OK, "a finding has the code of a rule");
    }
    return owner;
  }

  std::string_view m_content;
  const char* m_name;
  File m_file;
  Findings m_findings;
};

void Explain(const std::string& name) {
  vif_explanation* explanation = nullptr;
  const vif_status status = vif_explain(name.c_str(), &explanation, nullptr);
  Require(status == VIF_OK || status == VIF_ERROR_NOT_FOUND, "a name means a field or none");
  if (status != VIF_OK) return;
  auto field = Sized<vif_explained_field>();
  Require(vif_explanation_get(explanation, &field) == VIF_OK, "an explanation can be read");
  RequireTexts({field.name, field.asked, field.also_means, field.declares, field.unit});
  vif_explanation_free(explanation);
}

/// What a query for the only one of `count` fields returns.
vif_status StatusOfOnly(std::size_t count) {
  if (count == 0) return VIF_ERROR_NOT_FOUND;
  return count == 1 ? VIF_OK : VIF_ERROR_AMBIGUOUS;
}

void QueryFirst(const vif_file* file, const std::string& pattern, const std::vector<vif_index>& places) {
  const std::size_t used = places.size() - 1;  // the component takes the third
  vif_positions* positions = nullptr;
  const vif_status status = vif_file_find_first(file, pattern.c_str(), places.data(), used, &positions, nullptr);
  const std::size_t count = vif_positions_count(positions);
  std::size_t only = 0;
  const vif_status found = vif_file_find_first_unique(file, pattern.c_str(), places.data(), used, &only, nullptr);
  Require(found == (status == VIF_OK ? StatusOfOnly(count) : status), "the first component has the only field or not");
  if (found == VIF_OK) Require(vif_positions_data(positions)[0] == only, "it is the one that the other query finds");
  vif_positions_free(positions);
}

void Query(const vif_file* file, std::string_view line) {
  std::vector<vif_index> places;
  for (const auto& [location, number] : fuzz::SlotsIn(fuzz::TakeUpTo('|', line))) places.push_back({location, number});
  const std::string pattern(line);
  std::size_t count = 0;
  const vif_status status = vif_file_count(file, pattern.c_str(), places.data(), places.size(), &count, nullptr);
  Require(status == VIF_OK || status == VIF_ERROR_PATTERN, "a query can only have a bad pattern");
  vif_positions* positions = nullptr;
  Require(vif_file_find(file, pattern.c_str(), places.data(), places.size(), &positions, nullptr) == status,
          "all queries accept the same patterns");
  Require(vif_positions_count(positions) == count, "as many fields are found as are counted");
  std::size_t only = 0;
  const vif_status found = vif_file_find_unique(file, pattern.c_str(), places.data(), places.size(), &only, nullptr);
  if (status == VIF_OK) {
    Require(found == StatusOfOnly(count), "the only field is found if there is one");
    if (count == 1) Require(vif_positions_data(positions)[0] == only, "it is the one that any other query finds");
    std::size_t single = 0;
    const vif_status singly =
        vif_file_find_single(file, pattern.c_str(), places.data(), places.size(), &single, nullptr);
    Require(singly == (count > 1 ? VIF_ERROR_AMBIGUOUS : VIF_OK), "no field is not an error");
    if (count < 2) Require(single == (count == 0 ? VIF_NO_POSITION : only), "there is no field, or the only one");
  }
  vif_positions_free(positions);
  QueryFirst(file, pattern, places);
  Explain(pattern);
}

void CheckDifferences(const vif_differences* differences, bool areSame) {
  const std::size_t groups = vif_differences_group_count(differences);
  if (areSame) Require(vif_differences_count(differences) + groups == 0, "a file does not differ from itself");
  for (std::size_t i = 0; i < vif_differences_count(differences); ++i) {
    auto found = Sized<vif_difference>();
    Require(vif_differences_get(differences, i, &found) == VIF_OK, "a difference can be read");
    Require(found.group < groups || found.group == VIF_NO_POSITION, "a difference is part of a group or of none");
    for (const vif_declared_field* field : {&found.before, &found.after}) {
      RequireTexts({field->name, field->value, field->description, field->text, field->meaning});
    }
  }
  for (std::size_t i = 0; i < groups; ++i) {
    auto change = Sized<vif_group_change>();
    Require(vif_differences_group(differences, i, &change) == VIF_OK, "a changed group can be read");
    RequireText(change.summary);
  }
}

void Compare(const CInputFile& before, const CInputFile& after) {
  vif_differences* differences = nullptr;
  Require(vif_compare(before.Get(), after.Get(), nullptr, nullptr, &differences, nullptr) == VIF_OK,
          "any two files can be compared");
  CheckDifferences(differences, &before == &after);
  vif_findings* fixed = nullptr;
  vif_findings* added = nullptr;
  Require(
      vif_compare_findings(before.GetFindings(), after.GetFindings(), differences, &fixed, &added, nullptr) == VIF_OK,
      "any findings can be compared");
  RequireDocument(
      [&](vif_text** text) { return vif_differences_json(differences, "a", "b", fixed, added, text, nullptr); });
  vif_findings_free(fixed);
  vif_findings_free(added);
  vif_differences_free(differences);
}

void Report(const CInputFile& file, const CInputFile& after) {
  auto first = Sized<vif_reported_file>();
  first.file = file.Get();
  first.findings = file.GetFindings();
  auto second = Sized<vif_reported_file>();
  second.file = after.Get();
  for (const vif_reported_file* other : {static_cast<const vif_reported_file*>(nullptr), &std::as_const(second)}) {
    RequireDocument([&](vif_text** text) { return vif_report(&first, other, nullptr, text, nullptr); });
  }
}

void ComparePorts(const vif_file* file) {
  vif_ports* ports = nullptr;
  Require(vif_compare_ports(file, nullptr, nullptr, &ports, nullptr) == VIF_OK,
          "the ports of any file can be compared");
  for (std::size_t i = 0; i < vif_ports_count(ports); ++i) {
    auto comparison = Sized<vif_port_comparison>();
    Require(vif_ports_get(ports, i, &comparison) == VIF_OK, "a comparison can be read");
    CheckDifferences(comparison.differences, false);
  }
  vif_ports_free(ports);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view input(reinterpret_cast<const char*>(data), size);
  const std::string_view query = fuzz::TakeUpTo('\n', input);
  constexpr std::string_view separator = "\n%%\n";
  const std::size_t end = input.find(separator);
  const CInputFile first(input.substr(0, end));
  const CInputFile second(end == std::string_view::npos ? std::string_view() : input.substr(end + separator.size()));
  first.CancelLoading();
  first.CheckDocuments();
  first.CheckSourceLine(query.size(), size);
  Query(first.Get(), query);
  Compare(first, second);
  Compare(first, first);
  ComparePorts(first.Get());
  constexpr std::size_t oneIn = 16;  // making a page takes much longer than all the rest
  if (size % oneIn == 0) Report(first, second);
  return 0;
}

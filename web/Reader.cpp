// What the page asks of the library: a call for each, over the C interface alone. JavaScript has no structures and no
// handles, so the two files that it works on are kept here.
#include <vif.h>

#include <emscripten.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>

// JavaScript supplies this.
EM_JS(void, tell_progress, (double done, double total), { Module.onProgress(done, total); });

namespace {

std::int32_t TellProgress(void*, std::uint64_t done, std::uint64_t total) {
  tell_progress(static_cast<double>(done), static_cast<double>(total));
  return 0;
}

const vif_progress kProgress = {sizeof(vif_progress), TellProgress, nullptr};

/// A file that was given.
struct Subject {
  const void* bytes = nullptr;
  std::size_t size = 0;
  std::string name;
  vif_file* file = nullptr;
};

std::array<Subject, 2> subjects;
vif_error* error = nullptr;
std::string advice;  // says instead of the error why a file is refused, unless empty
vif_text* result = nullptr;
vif_text* afterPlace = nullptr;

void ClearResults() {
  vif_text_free(result);
  vif_text_free(afterPlace);
  vif_error_free(error);
  result = afterPlace = nullptr;
  error = nullptr;
  advice.clear();
}

/// Frees findings at the end of a call.
class CFindings {
 public:
  CFindings() = default;
  CFindings(const CFindings&) = delete;
  CFindings& operator=(const CFindings&) = delete;
  ~CFindings() { vif_findings_free(m_findings); }

  vif_findings** operator&() { return &m_findings; }
  operator const vif_findings*() const { return m_findings; }

 private:
  vif_findings* m_findings = nullptr;
};

vif_status Check(const Subject& subject, bool withNotes, CFindings& findings) {
  vif_check_options options = {};
  options.size = sizeof(options);
  options.notes = withNotes ? 1 : 0;
  return vif_check_bytes(subject.bytes, subject.size, subject.name.c_str(), &options, nullptr, &findings, &error);
}

/// Refuses text in a file named *.xml, and XML in one named *.txt, with the advice that the command gives. The library
/// would call the former an XML file with mistakes, and the latter a VIF without fields.
vif_status RequireItsOwnExtension(const Subject& subject, vif_status otherwise) {
  // The beginning tells, and spares the search for mistakes in the rest.
  constexpr std::size_t enoughBytes = 65'536;
  const char* code = "wrong-extension";
  vif_check_options options = {};
  options.size = sizeof(options);
  options.only = &code;
  options.only_count = 1;
  CFindings findings;
  const vif_status status = vif_check_bytes(subject.bytes, std::min(subject.size, enoughBytes), subject.name.c_str(),
                                            &options, nullptr, &findings, nullptr);
  vif_finding finding = {};
  finding.size = sizeof(finding);
  if (status != VIF_OK || vif_findings_get(findings, 0, &finding) != VIF_OK) return otherwise;
  advice = finding.message;
  return VIF_ERROR_FORM;
}

vif_reported_file Reported(const Subject& subject, const CFindings& findings) {
  return {sizeof(vif_reported_file), subject.file, subject.name.c_str(), findings};
}

}  // namespace

// Each function that may fail returns a status, and replaces the results of the one before.
extern "C" {

/// Loads the first or the second file. The bytes must last until another one is loaded in its place.
EMSCRIPTEN_KEEPALIVE vif_status reader_load(std::int32_t which, const void* bytes, std::size_t size, const char* name) {
  ClearResults();
  Subject& subject = subjects.at(static_cast<std::size_t>(which));
  vif_file_free(subject.file);
  subject = {bytes, size, name, nullptr};
  vif_status status = vif_file_make(&subject.file, &error);
  if (status != VIF_OK) return status;
  status = vif_file_load_bytes(subject.file, bytes, size, name, &kProgress, &error);
  const bool isEmpty = status == VIF_OK && vif_file_field_count(subject.file) == 0;
  return isEmpty || status == VIF_ERROR_INVALID ? RequireItsOwnExtension(subject, status) : status;
}

/// The report on the first file, or on how the second one differs from it.
EMSCRIPTEN_KEEPALIVE vif_status reader_report(std::int32_t count) {
  ClearResults();
  std::array<CFindings, 2> findings;
  std::array<vif_reported_file, 2> files = {};
  for (std::size_t i = 0; i < static_cast<std::size_t>(count); ++i) {
    if (const vif_status status = Check(subjects.at(i), true, findings.at(i)); status != VIF_OK) return status;
    files.at(i) = Reported(subjects.at(i), findings.at(i));
  }
  return vif_report(files.data(), count > 1 ? &files[1] : nullptr, &kProgress, &result, &error);
}

EMSCRIPTEN_KEEPALIVE vif_status reader_fields_json() {
  ClearResults();
  const char* name = subjects[0].name.c_str();
  return vif_file_json(subjects[0].file, &name, 1, &result, &error);
}

EMSCRIPTEN_KEEPALIVE vif_status reader_fields_csv() {
  ClearResults();
  return vif_file_csv(subjects[0].file, &result, &error);
}

/// The findings in the first file, which need not be valid.
EMSCRIPTEN_KEEPALIVE vif_status reader_findings_json(std::int32_t withNotes) {
  ClearResults();
  CFindings findings;
  const vif_status status = Check(subjects[0], withNotes != 0, findings);
  return status != VIF_OK ? status : vif_findings_json(findings, subjects[0].name.c_str(), &result, &error);
}

EMSCRIPTEN_KEEPALIVE vif_status reader_differences_json() {
  ClearResults();
  std::array<CFindings, 2> findings;
  for (std::size_t i = 0; i < 2; ++i) {
    if (const vif_status status = Check(subjects.at(i), false, findings.at(i)); status != VIF_OK) return status;
  }
  vif_differences* differences = nullptr;
  CFindings fixed;
  CFindings added;
  vif_status status = vif_compare(subjects[0].file, subjects[1].file, nullptr, &kProgress, &differences, &error);
  if (status == VIF_OK) {
    status = vif_compare_findings(findings[0], findings[1], differences, &fixed, &added, &error);
  }
  if (status == VIF_OK) {
    status = vif_differences_json(differences, subjects[0].name.c_str(), subjects[1].name.c_str(), fixed, added,
                                  &result, &error);
  }
  vif_differences_free(differences);
  return status;
}

/// The text of a line of the first file before the column, and after it.
EMSCRIPTEN_KEEPALIVE vif_status reader_source_line(double line, double column) {
  ClearResults();
  return vif_source_line(subjects[0].bytes, subjects[0].size, static_cast<std::uint64_t>(line),
                         static_cast<std::uint64_t>(column), &result, &afterPlace, &error);
}

EMSCRIPTEN_KEEPALIVE const char* reader_result() { return vif_text_data(result); }
EMSCRIPTEN_KEEPALIVE std::size_t reader_result_size() { return vif_text_size(result); }
EMSCRIPTEN_KEEPALIVE const char* reader_after_place() { return vif_text_data(afterPlace); }
EMSCRIPTEN_KEEPALIVE const char* reader_message() { return advice.empty() ? vif_error_message(error) : advice.c_str(); }

EMSCRIPTEN_KEEPALIVE vif_status reader_use_schemas(const char* folder) {
  ClearResults();
  return vif_set_schema_directory(folder, &error);
}
}

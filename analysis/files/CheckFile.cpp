#include "FileReaders.h"
#include "FormRules.h"
#include "rules/Rule.h"

#include <analysis/Check.h>
#include <analysis/FileForm.h>
#include <analysis/Files.h>

#include <algorithm>
#include <optional>
#include <system_error>
#include <tuple>

namespace vifanalysis {

namespace {

void CheckTextFields(const FoundFields& fields, Findings& findings) {
  FindTextsForGroups(fields, findings);
  FindDuplicates(fields, findings);
  FindBadNumbers(fields, findings);
}

void CheckXmlFields(const FoundFields& fields, Findings& findings) {
  FindUnknownNames(fields, findings);
  FindMisplaced(fields, findings);
  FindDuplicates(fields, findings);
  FindBadNumbers(fields, findings);
  FindMissingValues(fields, findings);
}

/// The rules that compare fields. In half of a file, fields would seem to be missing, or not to agree with the rest.
void CheckWhole(const FoundFields& fields, bool isText, Findings& findings) {
  if (isText) FindBadNumbering(fields, findings);
  FindWrongCounts(fields, findings);
  FindContradictions(fields, findings);
}

Findings CheckPath(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) throw CCheckError("there is no such file");
  if (!std::filesystem::status_known(status)) throw CCheckError(error.message());
  const bool isText = HasExtension(path, ".txt");
  if (!isText && !HasExtension(path, ".xml")) throw CCheckError("a VIF is a text (*.txt) or XML (*.xml) file");
  if (!std::filesystem::is_regular_file(status)) throw CCheckError("only a regular file can be read");
  auto [fields, findings, isComplete] = isText ? ReadTextFile(path) : ReadXmlFile(path);
  if (fields.empty()) {
    const std::optional<std::string> advice = AdviceOnExtension(path);
    if (advice) return {FindingAt(code::kWrongExtension, 0, 0, {}, *advice)};
  }
  (isText ? CheckTextFields : CheckXmlFields)(fields, findings);
  FindNothing(fields, findings);
  if (isComplete) CheckWhole(fields, isText, findings);
  return findings;
}

bool Contains(const std::vector<std::string>& codes, const std::string& code) {
  return std::any_of(codes.begin(), codes.end(), [&](const std::string& listed) {
    const RuleInfo* rule = FindRule(listed);
    return rule != nullptr && rule->code == code;
  });
}

bool IsWanted(const Finding& finding, const CheckOptions& options) {
  if (finding.severity == Severity::Note && !options.notes) return false;
  if (!options.only.empty() && !Contains(options.only, finding.code)) return false;
  return !Contains(options.except, finding.code);
}

}  // namespace

CCheckError::~CCheckError() = default;

std::vector<Finding> CheckFile(const std::filesystem::path& path, const CheckOptions& options) {
  Findings findings = CheckPath(path);
  std::erase_if(findings, [&](const Finding& finding) { return !IsWanted(finding, options); });
  std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
    // Findings without a line are about the whole file and come last.
    return std::make_tuple(a.line == 0, a.line, a.column) < std::make_tuple(b.line == 0, b.line, b.column);
  });
  return findings;
}

}  // namespace vifanalysis

#include "FileReaders.h"
#include "FormRules.h"
#include "rules/Rule.h"

#include <analysis/Check.h>
#include <analysis/FileForm.h>
#include <analysis/Files.h>

#include <algorithm>
#include <cstddef>
#include <optional>
#include <set>
#include <string_view>
#include <system_error>
#include <tuple>

namespace vifanalysis {

namespace {

void CheckTextFields(const FoundFields& fields, const GroupTree& tree, Findings& findings) {
  FindTextsForGroups(fields, findings);
  FindDuplicates(fields, tree, findings);
  FindBadNumbers(fields, findings);
}

void CheckXmlFields(const FoundFields& fields, const GroupTree& tree, Findings& findings) {
  FindMisplaced(fields, findings);
  FindDuplicates(fields, tree, findings);
  FindBadNumbers(fields, findings);
  FindMissingValues(fields, findings);
}

/// Line, column and element; borrows the finding.
using FindingPlace = std::tuple<std::size_t, std::size_t, std::string_view>;

FindingPlace PlaceOf(const Finding& finding) { return {finding.line, finding.column, finding.element}; }

/// Adds what contradicts itself. A count that differs from the groups usually differs from its text, too; that is one
/// mistake.
void AddContradictions(const FoundFields& fields, Findings& findings) {
  const std::size_t before = findings.size();
  FindContradictions(fields, findings);
  const auto first = findings.begin() + static_cast<std::ptrdiff_t>(before);
  std::set<FindingPlace> wrongCounts;
  std::for_each(findings.begin(), first, [&](const Finding& finding) {
    if (finding.code == code::kCountMismatch.code) wrongCounts.insert(PlaceOf(finding));
  });
  const auto isOfAWrongCount = [&](const Finding& finding) {
    return finding.code == "text-against-value" && wrongCounts.contains(PlaceOf(finding));
  };
  findings.erase(std::remove_if(first, findings.end(), isOfAWrongCount), findings.end());
}

/// The rules that compare fields. In half of a file, fields would seem to be missing, or not to agree with the rest.
void CheckWhole(const FoundFields& fields, const GroupTree& tree, bool isText, Findings& findings) {
  if (isText) FindBadNumbering(fields, tree, findings);
  FindWrongCounts(tree, findings);
  AddContradictions(fields, findings);
}

/// Whether the file is a text file; otherwise it is an XML file.
bool IsText(const std::filesystem::path& name) {
  const bool isText = HasExtension(name, ".txt");
  if (!isText && !HasExtension(name, ".xml")) throw CCheckError("a VIF is a text (*.txt) or XML (*.xml) file");
  return isText;
}

Findings FindAll(const CheckedFile& file) {
  const bool isText = IsText(file.name);
  auto [fields, undefinedNames, findings, isComplete] = isText ? ReadTextFile(file) : ReadXmlFile(file);
  if (fields.empty()) {
    const std::optional<std::string> advice = AdviceOnExtension(file);
    if (advice) return {FindingAt(code::kWrongExtension, 0, 0, {}, *advice)};
  }
  const Edition edition = EditionNamedBy(fields).value_or(Edition{});
  FindUndefinedNames(undefinedNames, isText ? NameStyle::Text : NameStyle::Xml, edition, findings);
  const GroupTree tree = MakeGroupTree(fields);
  (isText ? CheckTextFields : CheckXmlFields)(fields, tree, findings);
  FindNothing(fields, findings);
  if (isComplete) CheckWhole(fields, tree, isText, findings);
  return findings;
}

/// \throws CCheckError when there is no file that can be checked
void RequireFile(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) throw CCheckError("there is no such file");
  if (!std::filesystem::status_known(status)) throw CCheckError(error.message());
  IsText(path);  // the wrong extension is the more useful reason
  if (!std::filesystem::is_regular_file(status)) throw CCheckError("only a regular file can be read");
}

/// The codes of rules, as findings have them.
using Codes = std::set<std::string_view>;

/// The codes as the rules spell them, without those that no rule has.
Codes CodesOf(const std::vector<std::string>& listed) {
  Codes codes;
  for (const std::string& code : listed) {
    if (const RuleInfo* rule = FindRule(code)) codes.insert(rule->code);
  }
  return codes;
}

void KeepWanted(Findings& findings, const CheckOptions& options) {
  const Codes only = CodesOf(options.only);
  const Codes except = CodesOf(options.except);
  std::erase_if(findings, [&](const Finding& finding) {
    const bool isNamed = only.contains(finding.code);
    const bool isUnwantedNote = finding.severity == Severity::Note && !options.notes && !isNamed;
    const bool isLeftOut = !options.only.empty() && !isNamed;
    return isUnwantedNote || isLeftOut || except.contains(finding.code);
  });
}

/// The findings that the options ask for, in the order of the file.
Findings Wanted(Findings findings, const CheckOptions& options) {
  KeepWanted(findings, options);
  std::stable_sort(findings.begin(), findings.end(), [](const Finding& a, const Finding& b) {
    // Findings without a line are about the whole file and come last.
    return std::make_tuple(a.line == 0, a.line, a.column) < std::make_tuple(b.line == 0, b.line, b.column);
  });
  return findings;
}

}  // namespace

CCheckError::~CCheckError() = default;

std::vector<Finding> CheckFile(const std::filesystem::path& path, const CheckOptions& options) {
  RequireFile(path);
  return Wanted(FindAll({path}), options);
}

std::vector<Finding> CheckContent(std::string_view content, const std::filesystem::path& name,
                                  const CheckOptions& options) {
  return Wanted(FindAll({name, content}), options);
}

}  // namespace vifanalysis

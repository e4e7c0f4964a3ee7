#include "CheckFile.h"

#include "Command.h"
#include "FieldSource.h"
#include "FileForm.h"

#include <BaseUtilities/PathText.h>

#include <algorithm>
#include <optional>
#include <system_error>
#include <tuple>

namespace cli {

namespace {

void CheckTextFields(const FoundFields& fields, Findings& findings) {
  FindBadNumbering(fields, findings);
  FindTextsForGroups(fields, findings);
  FindDuplicates(fields, findings);
  FindBadNumbers(fields, findings);
  FindWrongCounts(fields, findings);
}

void CheckXmlFields(const FoundFields& fields, Findings& findings) {
  FindUnknownNames(fields, findings);
  FindMisplaced(fields, findings);
  FindDuplicates(fields, findings);
  FindBadNumbers(fields, findings);
  FindMissingValues(fields, findings);
  FindWrongCounts(fields, findings);
}

Findings CheckPath(const std::filesystem::path& path) {
  std::error_code error;
  const std::filesystem::file_status status = std::filesystem::status(path, error);
  if (status.type() == std::filesystem::file_type::not_found) throw Failure("there is no such file");
  if (!std::filesystem::status_known(status)) throw Failure(error.message());
  const bool isText = HasExtension(path, ".txt");
  if (!isText && !HasExtension(path, ".xml")) throw Failure("a VIF is a text (*.txt) or XML (*.xml) file");
  if (!std::filesystem::is_regular_file(status)) throw Failure("only a regular file can be read");
  auto [fields, findings] = isText ? ReadTextFile(path) : ReadXmlFile(path);
  if (fields.empty()) {
    const std::optional<std::string> advice = AdviceOnExtension(path);
    if (advice) return {{&code::kWrongExtension, 0, 0, {}, *advice}};
  }
  (isText ? CheckTextFields : CheckXmlFields)(fields, findings);
  FindNothing(fields, findings);
  return findings;
}

}  // namespace

CheckedFile CheckFile(const std::string& fileName) {
  CheckedFile checked = {fileName, {}};
  ReadFile(fileName, [&] { checked.findings = CheckPath(PathFromUtf8(fileName)); });
  std::stable_sort(checked.findings.begin(), checked.findings.end(), [](const Finding& a, const Finding& b) {
    // Findings without a line are about the whole file and come last.
    return std::make_tuple(a.line == 0, a.line, a.column) < std::make_tuple(b.line == 0, b.line, b.column);
  });
  return checked;
}

}  // namespace cli

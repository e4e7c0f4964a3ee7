#include "FileReaders.h"
#include "FormRules.h"
#include "Sentence.h"
#include "TextLineDiagnosis.h"

#include <VIFTextCheck.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <utility>

namespace vifanalysis {

namespace {

/// The text before the colon of a line, empty when there is none.
std::string WrittenName(std::string_view content) {
  const std::size_t colon = content.find(':');
  if (colon == std::string_view::npos) return {};
  content = content.substr(0, colon);
  return std::string(content.substr(0, content.find_last_not_of(" \t") + 1));
}

Finding DescribeLine(const VifLineReport& report) {
  if (report.problem == eVifLineReadFailed) {
    return FindingAt(code::kReadFailed, report.line, 0, {}, "reading the file failed; the rest of it is not checked");
  }
  std::string name = WrittenName(report.content);
  if (report.problem == eVifLineUnknownName) {
    std::string message = UnknownNameMessage(name, NameStyle::Text);
    return FindingAt(code::kUnknownName, report.line, 0, std::move(name), std::move(message));
  }
  if (report.content == kByteOrderMark) {
    return FindingAt(code::kByteOrderMark, report.line, 0, {},
                     "the line begins with a byte order mark; nothing is lost");
  }
  std::string message =
      Quoted(name.empty() ? report.content : name) + " yields no field: " + DiagnoseLine(report.content);
  return FindingAt(code::kNotADeclaration, report.line, 0, std::move(name), std::move(message));
}

}  // namespace

FileContent ReadTextFile(const std::filesystem::path& path) {
  FileContent content;
  CheckTextVif(
      path,
      [&](const VifLineReport& report) {
        content.findings.push_back(DescribeLine(report));
        if (report.problem == eVifLineReadFailed) content.isComplete = false;
      },
      nullptr,
      [&](std::size_t line, const CVIFField& field) {
        content.fields.push_back({field, line, 0, field.Name()});
      });
  return content;
}

}  // namespace vifanalysis

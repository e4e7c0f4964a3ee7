#include "FileReaders.h"
#include "FormRules.h"
#include "Sentence.h"
#include "TextLineDiagnosis.h"

#include <VIFContent.h>
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

Finding DescribeLostLine(const VifLineReport& report) {
  if (report.problem == eVifLineReadFailed) {
    return FindingAt(code::kReadFailed, report.line, 0, {}, "reading the file failed; the rest of it is not checked");
  }
  if (report.content == kByteOrderMark) {
    return FindingAt(code::kByteOrderMark, report.line, 0, {},
                     "the line begins with a byte order mark; nothing is lost");
  }
  std::string name = WrittenName(report.content);
  std::string message =
      Quoted(name.empty() ? report.content : name) + " yields no field: " + DiagnoseLine(report.content);
  return FindingAt(code::kNotADeclaration, report.line, 0, std::move(name), std::move(message));
}

}  // namespace

FileContent ReadTextFile(const CheckedFile& file) {
  FileContent content;
  const auto takeLine = [&](const VifLineReport& report) {
    if (report.problem == eVifLineUnknownName) {
      const std::string name = WrittenName(report.content);
      content.undefinedNames.push_back({name, report.line, 0, name});
    } else {
      content.findings.push_back(DescribeLostLine(report));
    }
    if (report.problem == eVifLineReadFailed) content.isComplete = false;
  };
  const auto takeField = [&](std::size_t line, const CVIFField& field) {
    content.fields.push_back({field, line, 0, field.Name(), content.fields.size()});
  };
  if (file.content) {
    CheckTextVifContent(*file.content, file.name, takeLine, nullptr, takeField);
  } else {
    CheckTextVif(file.name, takeLine, nullptr, takeField);
  }
  return content;
}

}  // namespace vifanalysis

#include "FindingWriters.h"

#include "Output.h"

#include <analysis/Text.h>

namespace cli {

using vifanalysis::Amount;
using vifanalysis::Finding;
using vifanalysis::Printable;
using vifanalysis::Severity;
using vifanalysis::SeverityName;

namespace {

std::string TextLine(const std::string& fileName, const Finding& finding) {
  std::string line = fileName;
  if (finding.line != 0) line += ':' + std::to_string(finding.line);
  if (finding.column != 0) line += ':' + std::to_string(finding.column);
  line.append(": ").append(SeverityName(finding.severity)).append(": ").append(finding.message);
  return line.append(" [").append(finding.code).append("]\n");
}

/// Such as "1 error, 2 warnings".
std::string Summary(const std::vector<CheckedFile>& files) {
  std::string text;
  for (const Severity severity : {Severity::Error, Severity::Warning, Severity::Note}) {
    const std::size_t count = vifanalysis::CountFindings(files, severity);
    if (count != 0) text.append(text.empty() ? "" : ", ").append(Amount(count, SeverityName(severity)));
  }
  return text.empty() ? "no findings" : text;
}

}  // namespace

void WriteFindingsAsText(const std::vector<CheckedFile>& files) {
  for (const CheckedFile& file : files) {
    const std::string fileName = Printable(file.name);
    for (const Finding& finding : file.findings) Write(TextLine(fileName, finding));
  }
  Write(Summary(files) + '\n');
}

}  // namespace cli

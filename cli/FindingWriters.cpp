#include "FindingWriters.h"

#include "Json.h"
#include "Output.h"

#include <analysis/Text.h>

#include <algorithm>

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
    const std::size_t count = CountFindings(files, severity);
    if (count != 0) text.append(text.empty() ? "" : ", ").append(Amount(count, SeverityName(severity)));
  }
  return text.empty() ? "no findings" : text;
}

Json NumberOrNull(std::size_t number) { return number != 0 ? Json(number) : Json(); }

Json ToJson(const Finding& finding) {
  return {
      {"severity", SeverityName(finding.severity)},
      {"code", finding.code},
      {"line", NumberOrNull(finding.line)},
      {"column", NumberOrNull(finding.column)},
      {"element", finding.element.empty() ? Json() : Json(finding.element)},
      {"message", finding.message},
  };
}

void WriteFileAsJson(const CheckedFile& file) {
  Write("{\"file\":" + Dump(file.name) + ",\"valid\":" + (file.Count(Severity::Error) == 0 ? "true" : "false"));
  Write(",\"findings\":[");
  const char* separator = "\n";
  for (const Finding& finding : file.findings) {
    Write(separator + Dump(ToJson(finding)));
    separator = ",\n";
  }
  Write(file.findings.empty() ? "]}" : "\n]}");
}

}  // namespace

std::size_t CheckedFile::Count(Severity severity) const {
  return static_cast<std::size_t>(std::count_if(findings.begin(), findings.end(),
                                                [&](const Finding& finding) { return finding.severity == severity; }));
}

void WriteFindingsAsText(const std::vector<CheckedFile>& files) {
  for (const CheckedFile& file : files) {
    const std::string fileName = Printable(file.name);
    for (const Finding& finding : file.findings) Write(TextLine(fileName, finding));
  }
  Write(Summary(files) + '\n');
}

void WriteFindingsAsJson(const std::vector<CheckedFile>& files) {
  Write("{\"files\":[");
  const char* separator = "\n";
  for (const CheckedFile& file : files) {
    Write(separator);
    WriteFileAsJson(file);
    separator = ",\n";
  }
  Write("\n],\n\"errors\":" + std::to_string(CountFindings(files, Severity::Error)));
  Write(",\"warnings\":" + std::to_string(CountFindings(files, Severity::Warning)));
  Write(",\"notes\":" + std::to_string(CountFindings(files, Severity::Note)) + "}\n");
}

std::size_t CountFindings(const std::vector<CheckedFile>& files, Severity severity) {
  std::size_t count = 0;
  for (const CheckedFile& file : files) count += file.Count(severity);
  return count;
}

}  // namespace cli

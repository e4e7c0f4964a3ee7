#include "writers/JsonText.h"

namespace vifanalysis {

namespace {

std::optional<std::uint64_t> NumberOrNull(std::size_t number) {
  return number != 0 ? std::optional<std::uint64_t>(number) : std::nullopt;
}

void AppendFinding(std::string& out, const Finding& finding) {
  out.append(R"({"severity":")").append(SeverityName(finding.severity)).append(R"(","code":)");
  AppendJson(out, finding.code);
  AppendMember(out, "line", NumberOrNull(finding.line));
  AppendMember(out, "column", NumberOrNull(finding.column));
  AppendTextMember(out, "element", finding.element);
  AppendMember(out, "message", finding.message);
  out += '}';
}

std::string CountText(std::span<const FileFindings> files, Severity severity) {
  return std::to_string(CountFindings(files, severity));
}

void WriteFile(std::string begin, const FileFindings& file, const TextSink& sink) {
  const bool isValid = CountFindings({&file, 1}, Severity::Error) == 0;
  begin += R"({"file":)";
  AppendJson(begin, file.name);
  begin.append(R"(,"valid":)").append(isValid ? "true" : "false").append(R"(,"findings":)");
  WriteList(std::move(begin), file.findings, AppendFinding, sink);
  sink("}");
}

}  // namespace

void WriteFindingsAsJson(std::span<const FileFindings> files, const TextSink& sink) {
  sink(R"({"files":[)");
  const char* separator = "\n";
  for (const FileFindings& file : files) {
    WriteFile(separator, file, sink);
    separator = ",\n";
  }
  sink("\n],\n\"errors\":" + CountText(files, Severity::Error) + ",\"warnings\":" +
       CountText(files, Severity::Warning) + ",\"notes\":" + CountText(files, Severity::Note) + "}\n");
}

}  // namespace vifanalysis

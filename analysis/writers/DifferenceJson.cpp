#include "writers/JsonText.h"

#include <algorithm>

namespace vifanalysis {

namespace {

void AppendDeclared(std::string& out, const std::optional<DeclaredField>& field) {
  if (!field) {
    out += "null";
    return;
  }
  out += R"({"value":)";
  AppendJson(out, field->value);
  AppendMember(out, "number", field->number);
  AppendMember(out, "description", field->description);
  AppendMember(out, "name", field->name);
  AppendMember(out, "indexes", field->indexes);
  AppendTextMember(out, "meaning", field->meaning);
  AppendMember(out, "place", field->place);
  out += '}';
}

void AppendDifference(std::string& out, const Difference& difference) {
  out.append(R"({"kind":")").append(KindText(difference.kind)).append(R"(","name":)");
  AppendJson(out, difference.name);
  out += R"(,"indexes":)";
  const std::optional<DeclaredField>& declared = difference.after ? difference.after : difference.before;
  if (declared) {
    AppendJson(out, declared->indexes);
  } else {
    out += "null";
  }
  out += R"(,"old":)";
  AppendDeclared(out, difference.before);
  out += R"(,"new":)";
  AppendDeclared(out, difference.after);
  AppendMember(out, "place", difference.place);
  out += '}';
}

void AppendPlaceOrNull(std::string& out, bool isThere, const GroupPlace& place) {
  if (isThere) {
    AppendJson(out, place);
  } else {
    out += "null";
  }
}

void AppendChange(std::string& out, const GroupChange& change) {
  out.append(R"({"kind":")").append(KindText(change.kind)).append(R"(","old":)");
  AppendPlaceOrNull(out, change.kind != GroupChangeKind::Added, change.before);
  out += R"(,"new":)";
  AppendPlaceOrNull(out, change.kind != GroupChangeKind::Removed, change.after);
  out += '}';
}

void AppendFinding(std::string& out, const Finding& finding) {
  out.append(R"({"severity":")").append(SeverityName(finding.severity)).append(R"(","code":)");
  AppendJson(out, finding.code);
  AppendTextMember(out, "element", finding.element);
  AppendMember(out, "message", finding.message);
  out += '}';
}

const char* BooleanText(bool value) { return value ? "true" : "false"; }

/// Writes the members that tell the differences, after `begin`.
void WriteDifferences(std::string begin, const Differences& differences, const TextSink& sink) {
  begin.append(R"("same":)").append(BooleanText(differences.IsEmpty())).append(",\n\"differences\":");
  WriteList(std::move(begin), differences.fields, AppendDifference, sink);
  WriteList(",\n\"groups\":", differences.groups, AppendChange, sink);
}

}  // namespace

bool AreSame(const FilePorts& ports) {
  return std::all_of(ports.ports.begin(), ports.ports.end(),
                     [](const PortComparison& port) { return port.differences.IsEmpty(); });
}

void WriteComparisonAsJson(const FileComparison& comparison, const TextSink& sink) {
  std::string begin = R"({"files":[)";
  AppendJson(begin, comparison.before);
  begin += ',';
  AppendJson(begin, comparison.after);
  WriteDifferences(begin + "],\n", comparison.differences, sink);
  WriteList(",\n\"findings\":{\"fixed\":", comparison.findings.fixed, AppendFinding, sink);
  WriteList(",\n\"new\":", comparison.findings.added, AppendFinding, sink);
  sink("}}\n");
}

void WritePortsAsJson(const FilePorts& ports, const TextSink& sink) {
  std::string begin = R"({"files":[)";
  AppendJson(begin, ports.file);
  sink(begin.append("],\n\"same\":").append(BooleanText(AreSame(ports))).append(",\n\"ports\":["));
  const char* separator = "\n";
  for (const PortComparison& port : ports.ports) {
    WriteDifferences(separator + (R"({"component":)" + std::to_string(port.component)) + R"(,"other":)" +
                         std::to_string(port.other) + ",",
                     port.differences, sink);
    sink("}");
    separator = ",\n";
  }
  sink(ports.ports.empty() ? "]}\n" : "\n]}\n");
}

}  // namespace vifanalysis

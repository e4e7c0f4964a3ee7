#include "DifferenceWriters.h"
#include "Json.h"
#include "Output.h"

#include <analysis/FieldText.h>

#include <optional>
#include <string_view>

namespace cli {

using vifanalysis::DeclaredField;
using vifanalysis::Difference;
using vifanalysis::Differences;
using vifanalysis::Finding;
using vifanalysis::GroupChange;
using vifanalysis::GroupChangeKind;
using vifanalysis::GroupPlace;

namespace {

Json PlaceJson(const GroupPlace& place) {
  Json json = Json::array();
  for (const VifIndex& slot : place) {
    if (!vifanalysis::IsUsed(slot)) continue;
    json.push_back({{"location", vifanalysis::LocationName(slot)},
                    {"index", vifanalysis::HasNumber(slot) ? Json(std::get<1>(slot)) : Json()}});
  }
  return json;
}

Json FieldJson(const std::optional<DeclaredField>& field) {
  if (!field) return {};
  return {{"value", field->value},
          {"number", field->number ? Json(*field->number) : Json()},
          {"description", field->description},
          {"name", field->name},
          {"indexes", PlaceJson(field->indexes)},
          {"meaning", field->meaning.empty() ? Json() : Json(field->meaning)},
          {"place", PlaceJson(field->place)}};
}

Json ToJson(const Difference& difference) {
  const std::optional<DeclaredField>& declared = difference.after ? difference.after : difference.before;
  return {{"kind", KindText(difference.kind)},
          {"name", difference.name},
          {"indexes", declared ? PlaceJson(declared->indexes) : Json()},
          {"old", FieldJson(difference.before)},
          {"new", FieldJson(difference.after)},
          {"place", PlaceJson(difference.place)}};
}

Json ToJson(const GroupChange& change) {
  return {{"kind", KindText(change.kind)},
          {"old", change.kind == GroupChangeKind::Added ? Json() : PlaceJson(change.before)},
          {"new", change.kind == GroupChangeKind::Removed ? Json() : PlaceJson(change.after)}};
}

Json ToJson(const Finding& finding) {
  return {{"severity", SeverityName(finding.severity)},
          {"code", finding.code},
          {"element", finding.element.empty() ? Json() : Json(finding.element)},
          {"message", finding.message}};
}

/// A member whose value is a list, each item on a line of its own.
template <typename Items>
void WriteList(std::string_view name, const Items& items) {
  Write(Dump(name) + ":[");
  const char* separator = "\n";
  for (const auto& item : items) {
    Write(separator + Dump(ToJson(item)));
    separator = ",\n";
  }
  Write(items.empty() ? "]" : "\n]");
}

const char* BooleanText(bool value) { return value ? "true" : "false"; }

void WriteDifferences(const Differences& differences) {
  Write(std::string("\"same\":") + BooleanText(differences.IsEmpty()) + ",\n");
  WriteList("differences", differences.fields);
  Write(",\n");
  WriteList("groups", differences.groups);
}

}  // namespace

void WriteComparisonAsJson(const FileComparison& comparison) {
  Write("{\"files\":" + Dump(Json::array({comparison.before, comparison.after})) + ",\n");
  WriteDifferences(comparison.differences);
  Write(",\n\"findings\":{");
  WriteList("fixed", comparison.findings.fixed);
  Write(",\n");
  WriteList("new", comparison.findings.added);
  Write("}}\n");
}

void WritePortsAsJson(const FilePorts& ports) {
  Write("{\"files\":" + Dump(Json::array({ports.file})) + ",\n\"same\":" + BooleanText(ports.AreSame()));
  Write(",\n\"ports\":[");
  const char* separator = "\n";
  for (const vifanalysis::PortComparison& port : ports.ports) {
    Write(separator + ("{\"component\":" + std::to_string(port.component)) +
          ",\"other\":" + std::to_string(port.other) + ",");
    WriteDifferences(port.differences);
    Write("}");
    separator = ",\n";
  }
  Write(ports.ports.empty() ? "]}\n" : "\n]}\n");
}

}  // namespace cli

#include <analysis/FieldExplanation.h>
#include <analysis/Sources.h>

#include <algorithm>
#include <initializer_list>
#include <utility>

namespace vifanalysis {

namespace {

std::string TextOf(const Edition& edition) { return IsKnown(edition) ? EditionText(edition) : std::string(); }

/// What the bits of a mask stand for, separated by commas.
std::string NamesOf(std::uint8_t mask, std::initializer_list<std::string_view> names) {
  std::string text;
  unsigned bit = 0;
  for (const std::string_view name : names) {
    if ((unsigned{mask} >> bit++ & 1U) == 0) continue;
    if (!text.empty()) text += ", ";
    text += name;
  }
  return text;
}

std::string ConditionOf(const FieldUnit& row) {
  if (row.thresholdTypes != 0) return NamesOf(row.thresholdTypes, {"threshold as value", "threshold as percentage"});
  if (row.apdoTypes != 0) return NamesOf(row.apdoTypes, {"PPS", "EPR AVS", "SPR AVS"});
  return NamesOf(row.supplyTypes, {"fixed", "battery", "variable", "augmented"});
}

bool SameUnit(const FieldUnit& a, const FieldUnit& b) {
  return a.unit == b.unit && a.scale == b.scale && a.apdoTypes == b.apdoTypes && a.thresholdTypes == b.thresholdTypes;
}

/// The units, equal ones merged with their supply types.
std::vector<FieldUnit> MergedUnits(std::span<const FieldUnit> rows) {
  std::vector<FieldUnit> merged;
  for (const FieldUnit& row : rows) {
    const auto same = std::find_if(merged.begin(), merged.end(), [&](const FieldUnit& a) { return SameUnit(a, row); });
    if (same == merged.end()) {
      merged.push_back(row);
    } else {
      same->supplyTypes |= row.supplyTypes;
    }
  }
  return merged;
}

std::string UnitText(const FieldInfo& field) {
  std::string text;
  for (const FieldUnit& row : MergedUnits(field.units)) {
    const std::string_view symbol = UnitSymbol(row.unit);
    if (symbol.empty()) continue;
    if (!text.empty()) text += "; ";
    if (row.scale != 1) text += std::to_string(row.scale) + " ";
    text += symbol;
    const std::string condition = ConditionOf(row);
    if (!condition.empty()) text += " (" + condition + ")";
  }
  return text;
}

bool HasWeakUnit(const FieldInfo& field) {
  return std::any_of(field.units.begin(), field.units.end(),
                     [](const FieldUnit& row) { return row.confidence == Confidence::Low; });
}

std::vector<ExplainedValue> ExplainValues(const FieldInfo& field) {
  std::vector<ExplainedValue> values;
  for (const FieldValue& row : field.values) {
    values.push_back({std::to_string(row.value), std::string(row.text), row.files > 0, row.confidence});
  }
  return values;
}

std::vector<ExplainedSpelling> ExplainSpellings(const FieldInfo& field) {
  std::vector<ExplainedSpelling> spellings;
  for (const FieldSpelling& row : field.spellings) {
    spellings.push_back({std::string(row.spelling), row.kind, TextOf(row.seen.first), TextOf(row.seen.last),
                         std::string(row.why), row.confidence});
  }
  return spellings;
}

}  // namespace

std::optional<FieldExplanation> ExplainField(std::string_view name) {
  const NameMatch match = FindField(name);
  if (match.field == nullptr) return std::nullopt;
  const FieldInfo& field = *match.field;
  FieldExplanation explanation;
  explanation.asked = match.kind;
  explanation.name = field.name;
  if (match.otherField != nullptr) explanation.alsoMeans = match.otherField->name;
  if (field.Group() != eVifLocUnset) explanation.group = GetVifLocInfo(field.Group()).name;
  explanation.declares = field.declares;
  explanation.note = field.note;
  explanation.type = FieldTypeText(field.type);
  explanation.unit = UnitText(field);
  explanation.unitIsWeak = HasWeakUnit(field);
  explanation.values = ExplainValues(field);
  explanation.firstEdition = TextOf(field.seen.first);
  explanation.lastEdition = TextOf(field.seen.last);
  explanation.seen = field.files > 0;
  explanation.spellings = ExplainSpellings(field);
  explanation.confidence = field.confidence;
  explanation.sources = SourcesInWords(field.sources);
  return explanation;
}

std::string EditionsText(const FieldExplanation& field) {
  if (!field.seen) return "not seen in a file";
  if (field.firstEdition.empty()) return {};
  return field.firstEdition == field.lastEdition ? field.firstEdition : field.firstEdition + " to " + field.lastEdition;
}

}  // namespace vifanalysis

#include "diff/Meaning.h"

#include <analysis/FieldText.h>
#include <analysis/PowerProfile.h>
#include <analysis/Text.h>

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

namespace vifanalysis {

namespace {

PdoContext ContextOf(const CGroupView& group, const Edition& edition) {
  PdoContext context;
  context.edition = edition;
  const EVifLocation kind = group.Kind();
  if (kind != eVifLocSrcPdo && kind != eVifLocSnkPdo) return context;
  const std::string prefix = kind == eVifLocSrcPdo ? "Src_PDO_" : "Snk_PDO_";
  context.supplyType = group.Number(prefix + "Supply_Type");
  context.apdoType = group.Number(prefix + "APDO_Type");
  context.thresholdType = group.Number("Src_PD_OCP_UV_Threshold_Type");
  return context;
}

/// A number as it is usually written: IDs and bits in hexadecimal digits.
std::string UsualNotation(const CVIFField& field) {
  const FieldInfo* info = FindField(field.Name()).field;
  if (info == nullptr || !HasNumber(field)) return {};
  const std::optional<Quantity> quantity = QuantityOf(*info, field.GetULongNumericValue());
  return quantity ? QuantityText(*quantity) : std::string();
}

/// Whether any of the text is known: "3.3 to ? V" says something, "?" and "? to ? V" do not.
bool SaysSomething(std::string_view text) {
  return !text.empty() && (text.find('?') == std::string_view::npos || std::any_of(text.begin(), text.end(), IsDigit));
}

std::string PdoSummary(const CGroupView& group) {
  std::vector<const CVIFField*> fields;
  for (const NamedField& named : group.Fields()) fields.push_back(&named.field->field);
  const PowerProfile profile = DescribePdo(fields);
  std::string summary;
  for (const std::string& part : {profile.supply, profile.voltage, profile.current, profile.power}) {
    if (SaysSomething(part)) summary.append(summary.empty() ? "" : ", ").append(part);
  }
  return summary;
}

/// What a field of the group says in words.
std::string MeaningIn(const CGroupView& group, std::string_view name) {
  const FoundField* found = group.Find(name);
  if (found == nullptr) return {};
  const std::string meaning = MeaningOf(*found, group, {}).text;
  return meaning.empty() ? found->field.Value() : meaning;
}

std::string LabelOf(const CGroupView& component) {
  const std::string_view label = component.Text("Port_Label");
  return label.empty() ? std::string() : std::string("Port_Label \"").append(label).append("\"");
}

}  // namespace

FieldMeaning MeaningOf(const FoundField& found, const CGroupView& group, const Edition& edition) {
  FieldMeaning meaning = MeaningOf(found.field, ContextOf(group, edition));
  if (meaning.text.empty()) meaning.text = UsualNotation(found.field);
  return meaning.text == found.field.Value() ? FieldMeaning{} : std::move(meaning);
}

std::string SummaryOf(const CGroupView& group) {
  switch (group.Kind()) {
    case eVifLocSrcPdo:
    case eVifLocSnkPdo: return PdoSummary(group);
    case eVifLocSopSvid: return MeaningIn(group, "SVID_SOP");
    case eVifLocCableSvid: return MeaningIn(group, "SVID");
    case eVifLocComponent: return LabelOf(group);
    default: return {};
  }
}

}  // namespace vifanalysis

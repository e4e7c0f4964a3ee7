#include "diff/FieldMeaning.h"

#include <analysis/FieldText.h>
#include <analysis/PowerProfile.h>
#include <analysis/Vocabulary.h>

#include <cstdint>
#include <optional>
#include <string_view>
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

std::string PdoSummary(const CGroupView& group) {
  std::vector<const CVIFField*> fields;
  for (const auto& [name, found] : group.Fields()) fields.push_back(&found->field);
  const PowerProfile profile = DescribePdo(fields);
  std::string summary;
  for (const std::string& part : {profile.supply, profile.voltage, profile.current, profile.power}) {
    if (!part.empty()) summary.append(summary.empty() ? "" : ", ").append(part);
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
  if (!HasNumber(found.field)) return {};
  const FieldInfo* info = FindField(found.field.Name()).field;
  if (info == nullptr) return {};
  const std::uint64_t number = found.field.GetULongNumericValue();
  const std::string_view text = ValueText(*info, number, edition);
  if (!text.empty()) return {std::string(text), FindValue(*info, number)->confidence == Confidence::Low};
  const PdoContext context = ContextOf(group, edition);
  const std::optional<Quantity> quantity = QuantityOf(*info, number, context);
  if (!quantity) return {};
  std::string words = QuantityText(*quantity);
  if (words == found.field.Value()) return {};
  return {std::move(words), FindUnit(*info, context)->confidence == Confidence::Low};
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

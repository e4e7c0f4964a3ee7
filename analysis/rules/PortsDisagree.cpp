#include "files/Sentence.h"
#include "rules/FieldWords.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

#include <map>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

/// What holds for the product as a whole, so that each port repeats it.
constexpr std::string_view kOfTheProduct[] = {
    "PD_Specification_Revision",
    "PD_Spec_Revision_Major",
    "PD_Spec_Revision_Minor",
    "PD_Spec_Version_Major",
    "PD_Spec_Version_Minor",
    "USB_VID_SOP",
    "XID_SOP",
    "Manufacturer_Info_VID_Port",
    "Num_Fixed_Batteries",
    "Num_Swappable_Battery_Slots",
};

/// Whether other rules have found that the port names a wrong revision of PD.
bool HasWrongRevision(const CComponentView& component, const CReporter& reporter) {
  return reporter.HasFound("pd-revision-pair", component) || reporter.HasFound("pd-revision-unknown", component);
}

/// Whether battery-count has found that the port names a wrong number of batteries.
bool HasWrongBatteries(const CComponentView& component, const CReporter& reporter) {
  return reporter.HasFound("battery-count", component);
}

bool CanBeCompared(const CComponentView& component, std::string_view name, const CReporter& reporter) {
  if (name.starts_with("PD_Spec") && HasWrongRevision(component, reporter)) return false;
  if (name.starts_with("Num_") && HasWrongBatteries(component, reporter)) return false;
  return component.Number(name) && IsPdPort(component);
}

/// Reports the first port that does not say what the first one says.
void CheckField(const CVifView& file, std::string_view name, CReporter& reporter) {
  const CComponentView* first = nullptr;
  for (const CComponentView& component : file.Components()) {
    if (!CanBeCompared(component, name, reporter)) continue;
    if (first == nullptr) first = &component;
    if (component.Number(name) == first->Number(name)) continue;
    const FoundField& found = *component.Find(name);
    reporter.Add(found, std::string(name)
                            .append(" is a matter of the product, but it is ")
                            .append(ValueInWords(found, file))
                            .append(" here and ")
                            .append(ValueInWords(*first->Find(name), file))
                            .append(" in Component ")
                            .append(std::to_string(first->Index())));
    return;
  }
}

void CheckLabels(const CVifView& file, CReporter& reporter) {
  std::map<std::string_view, const CComponentView*> labelled;
  for (const CComponentView& component : file.Components()) {
    const std::string_view label = component.Text("Port_Label");
    if (label.empty() || IsUnanswered(*component.Find("Port_Label"))) continue;
    const auto [other, isNew] = labelled.try_emplace(label, &component);
    if (isNew) continue;
    reporter.Add(*component.Find("Port_Label"), std::string("Port_Label is ")
                                                    .append(Quoted(label))
                                                    .append(", the same as in Component ")
                                                    .append(std::to_string(other->second->Index()))
                                                    .append("; each port needs a label of its own"));
  }
}

}  // namespace

void CheckPortsDisagree(const CVifView& file, CReporter& reporter) {
  for (const std::string_view name : kOfTheProduct) CheckField(file, name, reporter);
  CheckLabels(file, reporter);
}

}  // namespace vifanalysis

#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

/// A field that must be YES, and why.
struct Need {
  std::string_view field;
  std::string_view why;
};

constexpr Need kNeeds[] = {
    {"USB_PD_Support", "; USB4 is entered with a PD message"},
    {"Enter_USB_Supported", "; USB4 is entered with Enter_USB"},
    {"USB_Comms_Capable", "; USB4 is USB communication"},
};

void Report(const CComponentView& component, std::string_view name, std::string_view why, CReporter& reporter) {
  const FoundField& blamed = *component.Find(name);
  reporter.Add(blamed, ("USB4_Supported is YES, but " + FieldIs(component, name)).append(why));
}

/// Whether other rules have found that the port names a wrong revision of PD.
bool HasWrongRevision(const CComponentView& component, const CReporter& reporter) {
  return reporter.HasFound("pd-revision-pair", component) || reporter.HasFound("pd3-feature-in-pd2", component);
}

/// Whether the port cannot act in the role, unless data-role-contradiction doubts just that.
bool CannotAct(const CComponentView& component, std::string_view role, const CReporter& reporter) {
  return component.IsNo(role) && !reporter.HasFound("data-role-contradiction", *component.Find(role));
}

void CheckDirections(const CComponentView& component, CReporter& reporter) {
  if (component.IsNo("USB4_DFP_Supported") && component.IsNo("USB4_UFP_Supported")) {
    reporter.Add(*component.Find("USB4_DFP_Supported"),
                 "USB4_Supported is YES, but USB4_DFP_Supported and USB4_UFP_Supported are both NO");
  }
  if (!component.IsNo("Type_C_Port_On_Hub")) return;
  if (component.IsYes("USB4_DFP_Supported") && CannotAct(component, "Type_C_Can_Act_As_Host", reporter)) {
    reporter.Add(
        *component.Find("USB4_DFP_Supported"),
        "USB4_DFP_Supported is YES, but Type_C_Can_Act_As_Host is NO; a USB4 DFP that is not on a hub is a host");
  }
  if (component.IsYes("USB4_UFP_Supported") && CannotAct(component, "Type_C_Can_Act_As_Device", reporter)) {
    reporter.Add(*component.Find("USB4_UFP_Supported"),
                 "USB4_UFP_Supported is YES, but Type_C_Can_Act_As_Device is NO; a USB4 UFP that is not on a hub is a "
                 "device");
  }
}

}  // namespace

void CheckUsb4Needs(const CComponentView& component, CReporter& reporter) {
  if (!component.IsYes("USB4_Supported")) return;
  for (const Need& need : kNeeds) {
    if (component.IsNo(need.field)) Report(component, need.field, need.why, reporter);
  }
  const std::optional<std::uint64_t> revision = component.Number("PD_Specification_Revision");
  if (revision && *revision < 2 && !HasWrongRevision(component, reporter)) {
    Report(component, "PD_Specification_Revision", "; USB4 requires PD revision 3", reporter);
  }
  const std::optional<std::uint64_t> connector = component.Number("Connector_Type");
  if (connector && *connector != 2) {
    Report(component, "Connector_Type", "; USB4 requires 2 (Type-C)", reporter);
  }
  CheckDirections(component, reporter);
}

}  // namespace vifanalysis

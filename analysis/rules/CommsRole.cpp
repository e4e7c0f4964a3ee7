#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kHost = "Type_C_Can_Act_As_Host";
constexpr std::string_view kDevice = "Type_C_Can_Act_As_Device";

/// Whether data-role-contradiction has found that the port has a role that it denies, or the other way round.
bool AreRolesInDoubt(const CComponentView& component, const CReporter& reporter) {
  const auto isBlamed = [&](std::string_view name) {
    const FoundField* field = component.Find(name);
    return field != nullptr && reporter.HasFound("data-role-contradiction", *field);
  };
  return isBlamed(kHost) || isBlamed(kDevice);
}

}  // namespace

void CheckCommsRole(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view comms = "USB_Comms_Capable";
  if (AreRolesInDoubt(component, reporter)) return;
  const bool isNeither = component.IsNo(kHost) && component.IsNo(kDevice) && !component.MayBeYes("Type_C_Port_On_Hub");
  if (component.IsYes(comms) && isNeither) {
    reporter.Add(*component.Find(comms),
                 std::string(comms) + " is YES, but the port can act neither as host nor as device");
    return;
  }
  if (component.IsYes("USB4_Supported")) return;  // usb4-needs asks for USB communication
  if (component.IsNo(comms) && (component.IsYes(kHost) || component.IsYes(kDevice))) {
    const std::string_view name = component.IsYes(kHost) ? kHost : kDevice;
    reporter.Add(*component.Find(comms), std::string(comms) + " is NO, but " + std::string(name) + " is YES");
  }
}

}  // namespace vifanalysis

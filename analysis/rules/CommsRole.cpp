#include "rules/RuleFunctions.h"

#include <string>

namespace vifanalysis {

void CheckCommsRole(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view comms = "USB_Comms_Capable";
  constexpr std::string_view host = "Type_C_Can_Act_As_Host";
  constexpr std::string_view device = "Type_C_Can_Act_As_Device";
  const bool isNeither = component.IsNo(host) && component.IsNo(device) && !component.MayBeYes("Type_C_Port_On_Hub");
  if (component.IsYes(comms) && isNeither) {
    reporter.Add(*component.Find(comms),
                 std::string(comms) + " is YES, but the port can act neither as host nor as device");
  } else if (component.IsNo(comms) && (component.IsYes(host) || component.IsYes(device))) {
    const std::string_view name = component.IsYes(host) ? host : device;
    reporter.Add(*component.Find(comms), std::string(comms) + " is NO, but " + std::string(name) + " is YES");
  }
}

}  // namespace vifanalysis

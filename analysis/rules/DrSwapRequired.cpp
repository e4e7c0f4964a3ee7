#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

#include <string>

namespace vifanalysis {

namespace {

constexpr std::string_view kHost = "Type_C_Can_Act_As_Host";
constexpr std::string_view kDevice = "Type_C_Can_Act_As_Device";

/// Why a port that is not dual-role needs both swaps; null when it does not.
const char* WhyBoth(const CComponentView& component, StateMachine machine) {
  if (machine == StateMachine::Source && component.IsYes(kDevice))
    return "the port starts as a DFP, but can act as a device";
  if (machine != StateMachine::Sink) return nullptr;
  if (component.IsYes(kHost)) return "the port starts as a UFP, but can act as a host";
  if (component.IsYes("Type_C_Is_Alt_Mode_Controller"))
    return "the port starts as a UFP, but is an alternate mode controller";
  return nullptr;
}

/// Why a port must be able to become a DFP; null when it need not.
const char* WhyDfp(const CComponentView& component, StateMachine machine) {
  if (machine == StateMachine::Drp && component.IsYes(kHost) && component.IsNo(kDevice))
    return "the port is a DRP that can act only as a host, but may start as a UFP";
  return WhyBoth(component, machine);
}

/// Why a port must be able to become a UFP; null when it need not.
const char* WhyUfp(const CComponentView& component, StateMachine machine) {
  if (machine == StateMachine::Drp && component.IsYes(kDevice) && component.IsNo(kHost))
    return "the port is a DRP that can act only as a device, but may start as a DFP";
  return WhyBoth(component, machine);
}

const char* WhyDfpForUsb4(const CComponentView& component) {
  const bool isUsb4Dfp = component.IsYes("USB4_Supported") && component.IsYes("USB4_DFP_Supported");
  return isUsb4Dfp && component.IsNo("Type_C_Port_On_Hub") ? "the port can be a USB4 DFP and is not on a hub" : nullptr;
}

void Require(const CComponentView& component, std::string_view name, const char* why, CReporter& reporter) {
  if (why != nullptr && component.IsNo(name))
    reporter.Add(*component.Find(name), std::string(name) + " must be YES, because " + why);
}

}  // namespace

void CheckDrSwapRequired(const CComponentView& component, CReporter& reporter) {
  if (!IsPdPort(component) || IsCable(component)) return;
  const std::optional<StateMachine> machine = SettledStateMachine(component, reporter);
  const char* whyDfp = machine ? WhyDfp(component, *machine) : nullptr;
  Require(component, "DR_Swap_To_DFP_Supported", whyDfp != nullptr ? whyDfp : WhyDfpForUsb4(component), reporter);
  if (machine) Require(component, "DR_Swap_To_UFP_Supported", WhyUfp(component, *machine), reporter);
}

}  // namespace vifanalysis

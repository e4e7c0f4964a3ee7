#include "rules/RuleFunctions.h"
#include "rules/SoundFields.h"

#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kSupport = "BC_1_2_Support";
constexpr std::string_view kStateMachine = "Type_C_State_Machine";
constexpr std::string_view kChargingPort = "BC_1_2_Charging_Port_Type";

}  // namespace

void CheckBc12Role(const CComponentView& component, CReporter& reporter) {
  const std::uint64_t support = SoundNumber(component, kSupport, reporter).value_or(0);
  const bool isDevice = support == 1 || support == 3;
  const bool isChargingPort = support == 2 || support == 3;
  const std::optional<std::uint64_t> stateMachine = component.Number(kStateMachine);
  if ((isChargingPort && stateMachine == 1U) || (isDevice && stateMachine == 0U)) {
    reporter.Add(*component.Find(kSupport), Says(component, kSupport) + ", but " + Says(component, kStateMachine));
  } else if (isChargingPort && component.Number(kChargingPort) == 1U && component.IsNo("Type_C_Can_Act_As_Host")) {
    reporter.Add(*component.Find(kChargingPort), Says(component, kChargingPort) + ", which carries USB data, but " +
                                                     Says(component, "Type_C_Can_Act_As_Host"));
  }
}

}  // namespace vifanalysis

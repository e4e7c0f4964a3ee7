#include "rules/FieldWords.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kSupport = "BC_1_2_Support";
constexpr std::string_view kStateMachine = "Type_C_State_Machine";
constexpr std::string_view kChargingPort = "BC_1_2_Charging_Port_Type";

}  // namespace

void CheckBc12Role(const CComponentView& component, CReporter& reporter) {
  const std::uint64_t support = component.Number(kSupport).value_or(0);
  const bool isDevice = support == 1 || support == 3;
  const bool isChargingPort = support == 2 || support == 3;
  const std::optional<StateMachine> machine = SettledStateMachine(component, reporter);
  if ((isChargingPort && machine == StateMachine::Sink) || (isDevice && machine == StateMachine::Source)) {
    reporter.Add(*component.Find(kSupport),
                 FieldIs(component, kSupport) + ", but " + FieldIs(component, kStateMachine));
  } else if (isChargingPort && component.Number(kChargingPort) == 1U && component.IsNo("Type_C_Can_Act_As_Host")) {
    reporter.Add(*component.Find(kChargingPort), FieldIs(component, kChargingPort) + ", which carries USB data, but " +
                                                     FieldIs(component, "Type_C_Can_Act_As_Host"));
  }
}

}  // namespace vifanalysis

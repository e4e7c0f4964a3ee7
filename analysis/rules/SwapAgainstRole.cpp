#include "rules/FieldWords.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

#include <string>

namespace vifanalysis {

namespace {

constexpr std::string_view kTrySource = "Type_C_Implements_Try_SRC";
constexpr std::string_view kTrySink = "Type_C_Implements_Try_SNK";

void CheckPowerRoleSwaps(const CComponentView& component, PortRole role, CReporter& reporter) {
  for (const std::string_view name : {"Accepts_PR_Swap_As_Src", "Accepts_PR_Swap_As_Snk", "Requests_PR_Swap_As_Src",
                                      "Requests_PR_Swap_As_Snk", "FR_Swap_Supported_As_Initial_Sink"}) {
    if (!component.IsYes(name)) continue;
    reporter.Add(*component.Find(name), "a " + std::string(RoleName(role)) +
                                            " port cannot change its power role, but " + std::string(name) + " is YES");
  }
}

void CheckTryFields(const CComponentView& component, CReporter& reporter) {
  for (const std::string_view name : {kTrySource, kTrySink}) {
    if (!component.IsYes(name)) continue;
    reporter.Add(*component.Find(name),
                 std::string(name) + " is YES, but " + NameAndValue(component, "Type_C_State_Machine") + " is not DRP");
  }
}

}  // namespace

void CheckSwapAgainstRole(const CComponentView& component, CReporter& reporter) {
  const std::optional<PortRole> role = SettledRole(component, reporter);
  if (role == PortRole::ConsumerOnly || role == PortRole::ProviderOnly) CheckPowerRoleSwaps(component, *role, reporter);
  const std::optional<StateMachine> machine = SettledStateMachine(component, reporter);
  if (machine == StateMachine::Source || machine == StateMachine::Sink) {
    CheckTryFields(component, reporter);
  } else if (component.IsYes(kTrySource) && component.IsYes(kTrySink)) {
    reporter.Add(*component.Find(kTrySink), std::string(kTrySource) + " and " + std::string(kTrySink) +
                                                " are both YES, but a port can prefer only one role");
  }
}

}  // namespace vifanalysis

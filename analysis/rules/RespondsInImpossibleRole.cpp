#include "rules/FieldWords.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

/// A data role that the port does not start in, and what it takes to get there.
struct Role {
  StateMachine stateMachine;  ///< with which the port starts in the other role
  std::string_view name;
  std::string_view otherName;
  std::string_view swap;
  std::string_view responds;
};

constexpr Role kRoles[] = {
    {StateMachine::Sink, "a DFP", "a UFP", "DR_Swap_To_DFP_Supported", "Responds_To_Discov_SOP_DFP"},
    {StateMachine::Source, "a UFP", "a DFP", "DR_Swap_To_UFP_Supported", "Responds_To_Discov_SOP_UFP"},
};

std::string Message(const CComponentView& component, const Role& role) {
  return FieldIs(component, role.responds)
      .append(", but the port starts as ")
      .append(role.otherName)
      .append(" and never becomes ")
      .append(role.name)
      .append(": ")
      .append(FieldIs(component, "Type_C_State_Machine"))
      .append(", ")
      .append(FieldIs(component, role.swap));
}

}  // namespace

void CheckRespondsInImpossibleRole(const CComponentView& component, CReporter& reporter) {
  const std::optional<StateMachine> machine = SettledStateMachine(component, reporter);
  for (const Role& role : kRoles) {
    if (machine != role.stateMachine || !component.IsNo(role.swap) || !component.IsYes(role.responds)) continue;
    if (reporter.HasFound("dr-swap-required", *component.Find(role.swap))) continue;
    reporter.Add(*component.Find(role.responds), Message(component, role));
  }
}

}  // namespace vifanalysis

#include "rules/FieldWords.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

namespace vifanalysis {

namespace {

std::optional<StateMachine> StateMachineFor(PortRole role) {
  switch (role) {
    case PortRole::ConsumerOnly:
    case PortRole::ConsumerProvider: return StateMachine::Sink;
    case PortRole::ProviderConsumer:
    case PortRole::ProviderOnly: return StateMachine::Source;
    case PortRole::Drp: return StateMachine::Drp;
    case PortRole::EMarker: break;
  }
  return std::nullopt;
}

}  // namespace

void CheckRoleMismatch(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view name = "Type_C_State_Machine";
  const std::optional<PortRole> role = RoleOf(component);
  const std::optional<std::uint64_t> number = component.Number(name);
  if (!role || !number) return;
  const std::optional<StateMachine> wanted = StateMachineFor(*role);
  if (!wanted || *number == static_cast<std::uint64_t>(*wanted)) return;
  reporter.Add(*component.Find(name), NameAndValue(component, "PD_Port_Type") + " goes with " + std::string(name) +
                                          ' ' +
                                          NumberInWords(component.File(), name, static_cast<std::uint64_t>(*wanted)) +
                                          ", but it is " + NumberInWords(component.File(), name, *number));
}

}  // namespace vifanalysis

#include "rules/PortRole.h"

#include <analysis/Vocabulary.h>

namespace vifanalysis {

namespace {

/// Whether the number of PD_Port_Type or Type_C_State_Machine is in doubt.
bool IsMismatched(const CComponentView& component, const CReporter& reporter) {
  return reporter.HasFound("role-mismatch", component);
}

/// Whether the file is about a cable.
bool IsInACablesFile(const CComponentView& component) {
  constexpr std::uint64_t cable = 1;
  return component.File().HeaderNumber("VIF_Product_Type") == cable;
}

}  // namespace

std::optional<PortRole> RoleOf(const CComponentView& component) {
  const std::optional<std::uint64_t> number = component.Number("PD_Port_Type");
  if (!number || *number > static_cast<std::uint64_t>(PortRole::EMarker)) return std::nullopt;
  if (component.MayBeNo("USB_PD_Support")) return std::nullopt;
  const auto role = static_cast<PortRole>(*number);
  if (role != PortRole::EMarker && IsInACablesFile(component)) return std::nullopt;
  return role;
}

std::optional<StateMachine> StateMachineOf(const CComponentView& component) {
  const std::optional<std::uint64_t> number = component.Number("Type_C_State_Machine");
  if (!number || *number > static_cast<std::uint64_t>(StateMachine::Drp)) return std::nullopt;
  return static_cast<StateMachine>(*number);
}

std::optional<PortRole> SettledRole(const CComponentView& component, const CReporter& reporter) {
  return IsMismatched(component, reporter) ? std::nullopt : RoleOf(component);
}

std::optional<StateMachine> SettledStateMachine(const CComponentView& component, const CReporter& reporter) {
  return IsMismatched(component, reporter) ? std::nullopt : StateMachineOf(component);
}

bool IsPdPort(const CComponentView& component) {
  const std::optional<PortRole> role = RoleOf(component);
  return role && role != PortRole::EMarker;
}

bool IsCable(const CComponentView& component) {
  return IsInACablesFile(component) || RoleOf(component) == PortRole::EMarker;
}

std::string_view RoleName(PortRole role) {
  const FieldInfo* field = FindField("PD_Port_Type").field;
  return field != nullptr ? ValueText(*field, static_cast<std::uint64_t>(role)) : std::string_view();
}

}  // namespace vifanalysis

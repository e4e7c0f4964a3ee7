#include "rules/PortRole.h"

#include "rules/FieldWords.h"

#include <analysis/FieldText.h>
#include <analysis/Vocabulary.h>

namespace vifanalysis {

std::optional<PortRole> RoleOf(const CComponentView& component) {
  const std::optional<std::uint64_t> number = component.Number("PD_Port_Type");
  if (!number || *number > static_cast<std::uint64_t>(PortRole::EMarker)) return std::nullopt;
  if (component.IsNo("USB_PD_Support")) return std::nullopt;
  return static_cast<PortRole>(*number);
}

std::optional<StateMachine> StateMachineOf(const CComponentView& component) {
  const std::optional<std::uint64_t> number = component.Number("Type_C_State_Machine");
  if (!number || *number > static_cast<std::uint64_t>(StateMachine::Drp)) return std::nullopt;
  return static_cast<StateMachine>(*number);
}

bool IsCable(const CComponentView& component) {
  constexpr std::uint64_t cable = 1;
  const FoundField* type = component.File().FindHeader("VIF_Product_Type");
  const bool isCableProduct = type != nullptr && HasNumber(type->field) && type->field.GetULongNumericValue() == cable;
  return isCableProduct || RoleOf(component) == PortRole::EMarker;
}

std::string NameAndNumber(const CComponentView& component, std::string_view name) {
  return std::string(name).append(" ").append(NumberAndText(component, name, component.Number(name).value_or(0)));
}

std::string_view RoleName(PortRole role) {
  const FieldInfo* field = FindField("PD_Port_Type").field;
  return field != nullptr ? ValueText(*field, static_cast<std::uint64_t>(role)) : std::string_view();
}

}  // namespace vifanalysis

#include "rules/PortKind.h"

#include <algorithm>
#include <iterator>

namespace vifanalysis {

std::optional<PortKind> PortKindOf(const CComponentView& component) {
  constexpr std::uint64_t noRole = UINT64_MAX;
  const std::optional<std::uint64_t> role =
      component.IsNo("USB_PD_Support") ? noRole : component.Number("PD_Port_Type");
  const std::optional<std::uint64_t> machine = component.Number("Type_C_State_Machine");
  const std::optional<std::uint64_t> connector = component.Number("Connector_Type");
  if (!role || !machine || !connector) return std::nullopt;
  return PortKind{*role, *machine, *connector, component.IsYes("USB4_Supported") ? 1U : 0U};
}

bool IsAPortsOwn(std::string_view name) {
  constexpr std::string_view own[] = {
      "Port_Label",
      "DFP_VDO_Port_Number",
      "Hub_Port_Number",
      "USB4_Lane_0_Adapter",
      "PID_SOP",
      "Manufacturer_Info_PID_Port",
      "Host_Contains_Captive_Retimer",
      "Device_Contains_Captive_Retimer",
  };
  return std::find(std::begin(own), std::end(own), name) != std::end(own);
}

}  // namespace vifanalysis

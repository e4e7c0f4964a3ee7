#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <array>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

/// A field that, when it is NO, makes others meaningless.
struct Governor {
  std::string_view field;
  std::array<std::string_view, 2> governed;
};

constexpr Governor kGovernors[] = {
    {"Manufacturer_Info_Supported_Port", {"Manufacturer_Info_VID_Port", "Manufacturer_Info_PID_Port"}},
    {"Host_Supports_USB_Data", {"Host_Speed"}},
    {"Device_Supports_USB_Data", {"Device_Speed", "Device_Max_USB2_Speed"}},
    {"Captive_Cable", {"Captive_Cable_Is_eMarked"}},
};

void Report(const CMentions& ignored, const std::string& why, CReporter& reporter) {
  if (!ignored.IsEmpty()) reporter.Add(ignored.First(), why + ", so nothing reads " + ignored.InWords());
}

void Report(const CMentions& ignored, const CComponentView& component, std::string_view governor, CReporter& reporter) {
  Report(ignored, FieldIs(component, governor), reporter);
}

void CheckUsb4(const CComponentView& component, CReporter& reporter) {
  if (!component.IsNo("USB4_Supported")) return;
  CMentions ignored;
  ignored.AddFields(component, "USB4_", "USB4_Supported");
  Report(ignored, component, "USB4_Supported", reporter);
}

void CheckGovernors(const CComponentView& component, CReporter& reporter) {
  for (const Governor& governor : kGovernors) {
    if (!component.IsNo(governor.field)) continue;
    CMentions ignored;
    for (const std::string_view name : governor.governed) ignored.AddField(component, name);
    Report(ignored, component, governor.field, reporter);
  }
}

void CheckOverCurrent(const CComponentView& component, CReporter& reporter) {
  if (!component.IsNo("PD_OC_Protection")) return;
  CMentions ignored;
  ignored.AddField(component, "PD_OCP_Method");
  for (const CPdoView& pdo : component.Pdos(PdoSide::Source)) ignored.AddFields(pdo, "Src_PD_OCP_");
  Report(ignored, component, "PD_OC_Protection", reporter);
}

/// SVIDs that are there contradict the field, which another rule is about.
void CheckSvidCounts(const CComponentView& component, CReporter& reporter) {
  if (!component.IsNo("Modal_Operation_Supported_SOP") || component.Number("Num_SVIDs_Max_SOP").value_or(0) != 0 ||
      component.HasGroups(eVifLocSopSvid)) {
    return;
  }
  CMentions ignored;
  for (const std::string_view name : {"Num_SVIDs_Min_SOP", "Num_SVIDs_Max_SOP"}) ignored.AddField(component, name);
  Report(ignored, component, "Modal_Operation_Supported_SOP", reporter);
}

void CheckBatteryCharging(const CComponentView& component, CReporter& reporter) {
  constexpr std::uint64_t portableDevice = 1;  // of the larger values, all are charging ports
  const std::optional<std::uint64_t> support = component.Number("BC_1_2_Support");
  if (!support || *support > portableDevice) return;
  CMentions ignored;
  ignored.AddField(component, "BC_1_2_Charging_Port_Type");
  Report(ignored, component, "BC_1_2_Support", reporter);
}

void CheckIdentity(const CComponentView& component, CReporter& reporter) {
  if (!component.IsNo("Responds_To_Discov_SOP_UFP") || !component.IsNo("Responds_To_Discov_SOP_DFP")) return;
  CMentions ignored;
  for (const std::string_view name : {"XID_SOP", "Data_Capable_As_USB_Host_SOP", "Data_Capable_As_USB_Device_SOP",
                                      "Product_Type_UFP_SOP", "Product_Type_DFP_SOP", "DFP_VDO_Port_Number",
                                      "Modal_Operation_Supported_SOP", "USB_VID_SOP", "PID_SOP", "bcdDevice_SOP"}) {
    ignored.AddField(component, name);
  }
  Report(ignored, "Responds_To_Discov_SOP_UFP and Responds_To_Discov_SOP_DFP are both NO", reporter);
}

/// What the product says about USB4, for all ports together.
void CheckProduct(const CVifView& file, CReporter& reporter) {
  const auto& ports = file.Components();
  const bool isWithoutUsb4 = !ports.empty() && std::all_of(ports.begin(), ports.end(), [](const CComponentView& port) {
    return port.IsNo("USB4_Supported");
  });
  if (!isWithoutUsb4 || file.Product() == nullptr) return;
  CMentions ignored;
  ignored.AddFields(*file.Product(), "USB4_");
  for (const CGroupView& router : file.Product()->AllGroups(eVifLocRouter)) ignored.AddGroup(router, "the routers");
  Report(ignored, "USB4_Supported is NO for every component", reporter);
}

}  // namespace

void CheckIgnoredFields(const CVifView& file, CReporter& reporter) {
  for (const CComponentView& component : file.Components()) {
    CheckUsb4(component, reporter);
    CheckGovernors(component, reporter);
    CheckOverCurrent(component, reporter);
    CheckSvidCounts(component, reporter);
    CheckBatteryCharging(component, reporter);
    CheckIdentity(component, reporter);
  }
  CheckProduct(file, reporter);
}

}  // namespace vifanalysis

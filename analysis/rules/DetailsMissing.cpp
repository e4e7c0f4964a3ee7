#include "rules/FieldWords.h"
#include "rules/MissingFields.h"
#include "rules/RuleFunctions.h"

#include <array>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

using Names = std::vector<std::string_view>;

/// A field that says with a value that others are there.
struct Announcement {
  std::string_view field;
  std::uint64_t value;
  std::array<std::string_view, 2> details;  // the second may be empty
  // The first edition to have them, where that is known better than from the files that have been seen.
  Edition since{};
};

constexpr Announcement kAnnouncements[] = {
    {"Manufacturer_Info_Supported_Port", 1, {"Manufacturer_Info_VID_Port", "Manufacturer_Info_PID_Port"}},
    {"BC_1_2_Support", 2, {"BC_1_2_Charging_Port_Type"}},
    {"BC_1_2_Support", 3, {"BC_1_2_Charging_Port_Type"}},
    {"Type_C_Can_Act_As_Host", 1, {"Host_Supports_USB_Data"}, {3, 0}},
    {"Host_Supports_USB_Data", 1, {"Host_Speed"}},
    {"Type_C_Can_Act_As_Device", 1, {"Device_Supports_USB_Data"}, {3, 0}},
    {"Device_Supports_USB_Data", 1, {"Device_Speed"}},
    {"PD_OC_Protection", 1, {"PD_OCP_Method"}},
};

constexpr std::string_view kIdentity[] = {
    "USB_VID_SOP",
    "PID_SOP",
    "bcdDevice_SOP",
    "XID_SOP",
    "Data_Capable_As_USB_Host_SOP",
    "Data_Capable_As_USB_Device_SOP",
    "Modal_Operation_Supported_SOP",
};

bool IsMissing(const CComponentView& component, std::string_view detail, const Edition& since) {
  if (!IsKnown(since)) return vifanalysis::IsMissing(component, detail);
  return !detail.empty() && !component.Has(detail) && component.File().GetEdition() >= since;
}

void CheckAnnouncement(const CComponentView& component, const Announcement& announcement, CReporter& reporter) {
  if (component.Number(announcement.field) != announcement.value) return;
  const FoundField& announcing = *component.Find(announcement.field);
  if (reporter.HasFound("data-role-contradiction", announcing)) return;
  Names missing;
  for (const std::string_view detail : announcement.details) {
    if (IsMissing(component, detail, announcement.since)) missing.push_back(detail);
  }
  if (missing.empty()) return;
  reporter.Add(announcing, FieldIs(component, announcement.field) + ", but " + AreMissing(missing));
}

/// A hub, a host or a power brick answers with a DFP VDO, which has the port's number.
bool HasDfpVdo(const CComponentView& component) {
  const std::uint64_t type = component.Number("Product_Type_DFP_SOP").value_or(0);
  return type >= 1 && type <= 3;
}

Names IdentityDetails(const CComponentView& component) {
  Names details(std::begin(kIdentity), std::end(kIdentity));
  if (component.IsYes("Responds_To_Discov_SOP_UFP")) details.push_back("Product_Type_UFP_SOP");
  if (!component.IsYes("Responds_To_Discov_SOP_DFP")) return details;
  details.push_back("Product_Type_DFP_SOP");
  if (HasDfpVdo(component)) details.push_back("DFP_VDO_Port_Number");
  return details;
}

/// Where an adapter's file does not say whether the port is modal, alt-mode-role has found that.
bool IsFound(const CComponentView& component, std::string_view detail, const CReporter& reporter) {
  const FoundField* adapter = component.Find("Type_C_Is_Alt_Mode_Adapter");
  return detail == "Modal_Operation_Supported_SOP" && adapter != nullptr &&
         reporter.HasFound("alt-mode-role", *adapter);
}

void CheckIdentity(const CComponentView& component, CReporter& reporter) {
  const bool asUfp = component.IsYes("Responds_To_Discov_SOP_UFP");
  if (!asUfp && !component.IsYes("Responds_To_Discov_SOP_DFP")) return;
  Names missing;
  for (const std::string_view detail : IdentityDetails(component)) {
    if (IsMissing(component, detail) && !IsFound(component, detail, reporter)) missing.push_back(detail);
  }
  if (missing.empty()) return;
  reporter.Add(*component.Find(asUfp ? "Responds_To_Discov_SOP_UFP" : "Responds_To_Discov_SOP_DFP"),
               "the port responds to Discover Identity, but " + AreMissing(missing));
}

/// When a source's over-current protection acts, by its PD_OCP_Method: at too much current, at too low a voltage, or
/// both.
Names ThresholdNames(std::uint64_t method) {
  Names names;
  if (method == 0 || method == 2) names.insert(names.end(), {"Src_PD_OCP_OC_Debounce", "Src_PD_OCP_OC_Threshold"});
  if (method == 1 || method == 2) names.insert(names.end(), {"Src_PD_OCP_UV_Debounce", "Src_PD_OCP_UV_Threshold"});
  return names;
}

void CheckThresholds(const CComponentView& component, CReporter& reporter) {
  const std::optional<std::uint64_t> method = component.Number("PD_OCP_Method");
  if (!component.IsYes("PD_OC_Protection") || !method) return;
  const Names names = ThresholdNames(*method);
  for (const CPdoView& pdo : component.Pdos(PdoSide::Source)) {
    constexpr std::uint64_t augmented = 3;
    if (pdo.OwnNumber("Supply_Type").value_or(augmented) == augmented) continue;
    Names missing;
    for (const std::string_view name : names) {
      if (!pdo.Has(name)) missing.push_back(name);
    }
    if (!missing.empty()) reporter.Add(pdo, FieldIs(component, "PD_OCP_Method") + ", but " + AreMissing(missing));
  }
}

}  // namespace

void CheckDetailsMissing(const CComponentView& component, CReporter& reporter) {
  CheckIdentity(component, reporter);
  for (const Announcement& announcement : kAnnouncements) CheckAnnouncement(component, announcement, reporter);
  CheckThresholds(component, reporter);
}

}  // namespace vifanalysis

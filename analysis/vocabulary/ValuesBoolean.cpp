// Which values of boolean fields have been seen.
#include "ValueTables.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <string_view>

namespace vifanalysis {

namespace {

/// One boolean field: how many files have it as NO and as YES, and of which editions they are.
struct BooleanRow {
  std::string_view field;
  std::uint32_t filesWithNo;
  EditionRange no;
  std::uint32_t filesWithYes;
  EditionRange yes;
};

// A table with a row to a line.
// clang-format off
constexpr BooleanRow kBooleans[] = {
    {"USB4_Supported", 82, {{3, 10}, {3, 36}}, 1, {{3, 32}, {3, 32}}},
    {"USB_PD_Support", 2, {{3, 19}, {3, 27}}, 114, {{1, 36}, {3, 36}}},
    {"Port_Battery_Powered", 60, {{1, 36}, {3, 36}}, 75, {{1, 40}, {3, 32}}},
    {"Captive_Cable", 179, {{1, 11}, {3, 36}}, 1, {{3, 17}, {3, 17}}},
    {"Captive_Cable_Is_eMarked", 1, {{3, 17}, {3, 17}}, 0, {}},
    {"SOP_Capable", 0, {}, 178, {{1, 11}, {3, 36}}},
    {"SOP_P_Capable", 136, {{1, 11}, {3, 27}}, 42, {{3, 19}, {3, 36}}},
    {"SOP_PP_Capable", 137, {{1, 11}, {3, 36}}, 41, {{3, 19}, {3, 32}}},
    {"SOP_P_Debug_Capable", 178, {{1, 11}, {3, 36}}, 0, {}},
    {"SOP_PP_Debug_Capable", 178, {{1, 11}, {3, 36}}, 0, {}},
    {"Manufacturer_Info_Supported_Port", 106, {{1, 36}, {3, 36}}, 27, {{2, 1}, {3, 32}}},
    {"Chunking_Implemented_SOP", 46, {{1, 40}, {1, 40}}, 87, {{1, 36}, {3, 36}}},
    {"Unchunked_Extended_Messages_Supported", 121, {{1, 36}, {3, 32}}, 12, {{3, 32}, {3, 36}}},
    {"Security_Msgs_Supported_SOP", 133, {{1, 36}, {3, 36}}, 0, {}},
    {"Unconstrained_Power", 140, {{1, 22}, {3, 36}}, 12, {{1, 22}, {3, 15}}},
    {"USB_Comms_Capable", 48, {{1, 11}, {3, 27}}, 130, {{1, 11}, {3, 36}}},
    {"DR_Swap_To_DFP_Supported", 88, {{1, 11}, {3, 27}}, 89, {{1, 11}, {3, 36}}},
    {"DR_Swap_To_UFP_Supported", 124, {{1, 11}, {3, 36}}, 53, {{1, 11}, {3, 27}}},
    {"VCONN_Swap_To_On_Supported", 62, {{1, 11}, {3, 27}}, 116, {{1, 11}, {3, 36}}},
    {"VCONN_Swap_To_Off_Supported", 62, {{1, 11}, {3, 27}}, 116, {{1, 11}, {3, 36}}},
    {"Responds_To_Discov_SOP_UFP", 108, {{1, 40}, {3, 30}}, 25, {{1, 36}, {3, 36}}},
    {"Responds_To_Discov_SOP_DFP", 90, {{1, 40}, {3, 27}}, 43, {{1, 36}, {3, 36}}},
    {"Attempts_Discov_SOP", 47, {{1, 11}, {3, 27}}, 131, {{1, 11}, {3, 36}}},
    {"Data_Reset_Supported", 59, {{3, 17}, {3, 36}}, 12, {{3, 32}, {3, 32}}},
    {"Enter_USB_Supported", 65, {{3, 17}, {3, 32}}, 6, {{3, 26}, {3, 36}}},
    {"Type_C_Can_Act_As_Host", 89, {{1, 11}, {3, 27}}, 91, {{1, 40}, {3, 36}}},
    {"Type_C_Can_Act_As_Device", 170, {{1, 11}, {3, 36}}, 10, {{1, 11}, {3, 32}}},
    {"Type_C_Implements_Try_SRC", 35, {{1, 11}, {3, 36}}, 110, {{1, 11}, {3, 32}}},
    {"Type_C_Implements_Try_SNK", 145, {{1, 11}, {3, 36}}, 0, {}},
    {"Type_C_Supports_Audio_Accessory", 179, {{1, 11}, {3, 36}}, 1, {{3, 32}, {3, 32}}},
    {"Type_C_Supports_VCONN_Powered_Accessory", 118, {{1, 11}, {3, 27}}, 0, {}},
    {"Type_C_Is_VCONN_Powered_Accessory", 122, {{1, 11}, {3, 36}}, 0, {}},
    {"Type_C_Is_Debug_Target_SRC", 22, {{2, 1}, {3, 36}}, 109, {{1, 22}, {3, 32}}},
    {"Type_C_Is_Debug_Target_SNK", 35, {{1, 36}, {3, 36}}, 109, {{1, 22}, {3, 32}}},
    {"Type_C_Port_On_Hub", 180, {{1, 11}, {3, 36}}, 0, {}},
    {"Type_C_Sources_VCONN", 64, {{1, 11}, {3, 27}}, 116, {{1, 11}, {3, 36}}},
    {"Type_C_Is_Alt_Mode_Controller", 96, {{1, 36}, {3, 36}}, 57, {{1, 22}, {3, 32}}},
    {"Type_C_Is_Alt_Mode_Adapter", 114, {{1, 40}, {3, 36}}, 7, {{1, 36}, {3, 32}}},
    {"USB4_DFP_Supported", 0, {}, 2, {{3, 32}, {3, 36}}},
    {"USB4_UFP_Supported", 1, {{3, 36}, {3, 36}}, 1, {{3, 32}, {3, 32}}},
    {"USB4_USB3_Tunneling_Supported", 0, {}, 2, {{3, 32}, {3, 36}}},
    {"USB4_DP_Tunneling_Supported", 1, {{3, 36}, {3, 36}}, 1, {{3, 32}, {3, 32}}},
    {"USB4_PCIe_Tunneling_Supported", 1, {{3, 36}, {3, 36}}, 1, {{3, 32}, {3, 32}}},
    {"USB4_TBT3_Compatibility_Supported", 1, {{3, 36}, {3, 36}}, 1, {{3, 32}, {3, 32}}},
    {"USB4_CL1_State_Supported", 1, {{3, 32}, {3, 32}}, 1, {{3, 36}, {3, 36}}},
    {"USB4_CL2_State_Supported", 1, {{3, 32}, {3, 32}}, 1, {{3, 36}, {3, 36}}},
    {"USB4_Dock", 0, {}, 0, {}},
    {"USB4_Device_HiFi_Bi_TMU_Mode_Required", 0, {}, 0, {}},
    {"USB4_Audio_Supported", 0, {}, 0, {}},
    {"USB4_HID_Supported", 0, {}, 0, {}},
    {"USB4_Printer_Supported", 0, {}, 0, {}},
    {"USB4_Mass_Storage_Supported", 0, {}, 0, {}},
    {"USB4_Video_Supported", 0, {}, 0, {}},
    {"USB4_Comms_Networking_Supported", 0, {}, 0, {}},
    {"USB4_Media_Transfer_Protocol_Supported", 0, {}, 0, {}},
    {"USB4_Smart_Card_Supported", 0, {}, 0, {}},
    {"USB4_Still_Image_Capture_Supported", 0, {}, 0, {}},
    {"USB4_Monitor_Device_Supported", 0, {}, 0, {}},
    {"Host_Supports_USB_Data", 0, {}, 42, {{3, 19}, {3, 36}}},
    {"Host_Contains_Captive_Retimer", 41, {{3, 19}, {3, 36}}, 22, {{3, 19}, {3, 32}}},
    {"Host_Truncates_DP_For_tDHPResponse", 42, {{3, 19}, {3, 36}}, 0, {}},
    {"Host_Is_Embedded", 42, {{3, 19}, {3, 36}}, 0, {}},
    {"Host_Suspend_Supported", 0, {}, 42, {{3, 19}, {3, 36}}},
    {"Is_DFP_On_Hub", 42, {{3, 19}, {3, 36}}, 0, {}},
    {"Device_Supports_USB_Data", 1, {{3, 36}, {3, 36}}, 1, {{3, 32}, {3, 32}}},
    {"Device_Contains_Captive_Retimer", 3, {{1, 36}, {3, 36}}, 0, {}},
    {"Device_Truncates_DP_For_tDHPResponse", 2, {{3, 32}, {3, 36}}, 0, {}},
    {"EPR_Supported_As_Src", 56, {{3, 17}, {3, 36}}, 0, {}},
    {"USB_Suspend_May_Be_Cleared", 59, {{1, 11}, {3, 30}}, 126, {{1, 11}, {3, 36}}},
    {"Sends_Pings", 143, {{1, 11}, {3, 36}}, 0, {}},
    {"Master_Port", 54, {{3, 15}, {3, 32}}, 5, {{3, 10}, {3, 36}}},
    {"PD_OC_Protection", 48, {{1, 40}, {3, 36}}, 55, {{1, 40}, {3, 32}}},
    {"EPR_Supported_As_Snk", 63, {{3, 15}, {3, 36}}, 0, {}},
    {"No_USB_Suspend_May_Be_Set", 17, {{3, 17}, {3, 27}}, 105, {{1, 36}, {3, 36}}},
    {"GiveBack_May_Be_Set", 161, {{1, 11}, {3, 36}}, 3, {{1, 11}, {1, 22}}},
    {"Higher_Capability_Set", 162, {{1, 11}, {3, 32}}, 2, {{3, 32}, {3, 36}}},
    {"Accepts_PR_Swap_As_Src", 0, {}, 129, {{1, 11}, {3, 36}}},
    {"Accepts_PR_Swap_As_Snk", 0, {}, 129, {{1, 11}, {3, 36}}},
    {"Requests_PR_Swap_As_Src", 10, {{2, 1}, {3, 32}}, 119, {{1, 11}, {3, 36}}},
    {"Requests_PR_Swap_As_Snk", 17, {{2, 1}, {3, 36}}, 71, {{1, 11}, {3, 32}}},
    {"FR_Swap_Supported_As_Initial_Sink", 74, {{1, 40}, {3, 36}}, 20, {{3, 22}, {3, 32}}},
    {"Data_Capable_As_USB_Host_SOP", 47, {{1, 11}, {3, 17}}, 41, {{3, 19}, {3, 36}}},
    {"Data_Capable_As_USB_Device_SOP", 78, {{1, 11}, {3, 36}}, 10, {{1, 11}, {3, 32}}},
    {"Modal_Operation_Supported_SOP", 36, {{3, 17}, {3, 36}}, 47, {{1, 11}, {3, 32}}},
    {"SVID_Fixed_SOP", 0, {}, 48, {{1, 11}, {3, 36}}},
    {"AMA_VCONN_Reqd", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"AMA_VBUS_Reqd", 0, {}, 1, {{1, 36}, {1, 36}}},
    {"Data_Capable_As_USB_Host", 0, {}, 0, {}},
    {"Data_Capable_As_USB_Device", 0, {}, 0, {}},
    {"Modal_Operation_Supported", 0, {}, 0, {}},
    {"VBUS_Through_Cable", 0, {}, 0, {}},
    {"EPR_Mode_Capable", 0, {}, 0, {}},
    {"Manufacturer_Info_Supported", 0, {}, 0, {}},
    {"Chunking_Implemented", 0, {}, 0, {}},
    {"Security_Msgs_Supported", 0, {}, 0, {}},
    {"Cable_SOP_PP_Controller", 0, {}, 0, {}},
    {"SBU_Supported", 0, {}, 0, {}},
    {"Active_Cable_USB4_Support", 0, {}, 0, {}},
    {"Active_Cable_USB2_Supported", 0, {}, 0, {}},
    {"Active_Cable_USB32_Supported", 0, {}, 0, {}},
    {"Active_Cable_Optically_Isolated", 0, {}, 0, {}},
    {"VPD_Charge_Through_Support", 0, {}, 0, {}},
    {"SVID_Fixed", 0, {}, 0, {}},
    {"USB4_PCIe_Wake_Supported", 0, {}, 1, {{3, 36}, {3, 36}}},
    {"USB4_USB3_Wake_Supported", 1, {{3, 36}, {3, 36}}, 0, {}},
    {"SVID_Modes_Fixed_SOP", 0, {}, 46, {{1, 11}, {1, 36}}},
    {"SVID_Mode_Enter_SOP", 0, {}, 46, {{1, 11}, {1, 36}}},
    {"SVID_Modes_Fixed", 0, {}, 0, {}},
    {"SVID_Mode_Enter", 0, {}, 0, {}},
    {"Active_Cable_Optically_Isololated", 0, {}, 0, {}},
    {"Active_Cable_Operating_Temp_Support", 0, {}, 0, {}},
    {"Active_Cable_Shutdown_Temp_Support", 0, {}, 0, {}},
    {"Has_Invariant_PDOs", 18, {{3, 22}, {3, 32}}, 21, {{3, 23}, {3, 36}}},
    {"USB4_Asymmetric_3_Rx_Support", 1, {{3, 32}, {3, 32}}, 0, {}},
    {"USB4_Asymmetric_3_Tx_Support", 1, {{3, 32}, {3, 32}}, 0, {}},
    {"USB4_CL0s_State_Supported", 1, {{3, 32}, {3, 32}}, 0, {}},
    {"DP_mode_Dfp_D_A_Supported", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"DP_mode_Dfp_D_B_Supported", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"DP_mode_Dfp_D_C_Supported", 0, {}, 1, {{1, 36}, {1, 36}}},
    {"DP_mode_Dfp_D_D_Supported", 1, {{1, 36}, {1, 36}}, 1, {{1, 36}, {1, 36}}},
    {"DP_mode_Dfp_D_E_Supported", 1, {{1, 36}, {1, 36}}, 1, {{1, 36}, {1, 36}}},
    {"DP_mode_Dfp_D_F_Supported", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"DP_mode_Receptacle", 1, {{1, 36}, {1, 36}}, 1, {{1, 36}, {1, 36}}},
    {"DP_mode_Support_DPv13", 0, {}, 1, {{1, 36}, {1, 36}}},
    {"DP_mode_Support_UsbGen2", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"DP_mode_Ufp_D_A_Supported", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"DP_mode_Ufp_D_B_Supported", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"DP_mode_Ufp_D_C_Supported", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"DP_mode_Ufp_D_D_Supported", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"DP_mode_Ufp_D_E_Supported", 1, {{1, 36}, {1, 36}}, 0, {}},
    {"DP_mode_Usb20_Not_Used", 1, {{1, 36}, {1, 36}}, 1, {{1, 36}, {1, 36}}},
};
// clang-format on

constexpr FieldValue ValueOf(std::string_view field, std::uint64_t value, std::uint32_t files,
                             const EditionRange& seen) {
  return {field, value, value == 0 ? "NO" : "YES", files, seen, Confidence::High, files > 0 ? "C" : "N"};
}

constexpr auto kValues = [] {
  std::array<FieldValue, 2 * std::size(kBooleans)> values{};
  std::size_t next = 0;
  for (const BooleanRow& row : kBooleans) {
    values[next++] = ValueOf(row.field, 0, row.filesWithNo, row.no);
    values[next++] = ValueOf(row.field, 1, row.filesWithYes, row.yes);
  }
  return values;
}();

}  // namespace

std::span<const FieldValue> BooleanValues() { return kValues; }

}  // namespace vifanalysis

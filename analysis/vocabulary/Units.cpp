// The units of fields.
#include "ValueTables.h"

#include <cstdint>

namespace vifanalysis {

namespace {

using enum Confidence;
using enum Unit;

constexpr std::uint8_t kFixed = 1U << 0U;
constexpr std::uint8_t kBattery = 1U << 1U;
constexpr std::uint8_t kVariable = 1U << 2U;
constexpr std::uint8_t kAugmented = 1U << 3U;

constexpr std::uint8_t kPps = 1U << 0U;
constexpr std::uint8_t kEprAvs = 1U << 1U;

constexpr std::uint8_t kVoltageThreshold = 1U << 0U;
constexpr std::uint8_t kPercentageThreshold = 1U << 1U;

// A table with a row to a line.
// clang-format off
constexpr FieldUnit kUnits[] = {
    {"Manufacturer_Info_VID_Port", 0, 0, 0, Identifier, 1, 52, 27, High, "C"},
    {"Manufacturer_Info_PID_Port", 0, 0, 0, Identifier, 1, 52, 27, High, "C"},
    {"Num_Fixed_Batteries", 0, 0, 0, Count, 1, 57, 38, High, "C"},
    {"Num_Swappable_Battery_Slots", 0, 0, 0, Count, 1, 57, 38, High, "C"},
    {"USB4_Num_Retimers", 0, 0, 0, Count, 1, 2, 1, High, "C"},
    {"USB4_Num_DP_Lanes", 0, 0, 0, Count, 1, 3, 2, High, "C"},
    {"USB4_DROM_Vendor_ID", 0, 0, 0, Identifier, 1, 1, 1, Medium, "C"},
    {"USB4_Num_Internal_Host_Controllers", 0, 0, 0, Count, 1, 1, 1, Medium, "C"},
    {"USB4_Num_PCIe_DN_Bridges", 0, 0, 0, Count, 1, 1, 1, Medium, "C"},
    {"Product_Total_Source_Power_mW", 0, 0, 0, MilliWatt, 1, 97, 62, High, "C N S2"},
    {"Port_Source_Power_Gang_Max_Power", 0, 0, 0, MilliWatt, 1, 34, 17, High, "C S7"},
    {"Host_Gen1x1_tLinkTurnaround", 0, 0, 0, Unknown, 1, 0, 0, Low, "N"},
    {"Host_Gen2x1_tLinkTurnaround", 0, 0, 0, Unknown, 1, 0, 0, Low, "N"},
    {"Device_Gen1x1_tLinkTurnaround", 0, 0, 0, Unknown, 1, 0, 0, Low, "N"},
    {"Device_Gen2x1_tLinkTurnaround", 0, 0, 0, Unknown, 1, 0, 0, Low, "N"},
    {"PD_Power_As_Source", 0, 0, 0, MilliWatt, 1, 95, 60, High, "C S2"},
    {"Num_Src_PDOs", 0, 0, 0, Count, 1, 51, 32, High, "C"},
    {"PD_Power_As_Sink", 0, 0, 0, MilliWatt, 1, 110, 75, High, "C S2 S3"},
    {"Num_Snk_PDOs", 0, 0, 0, Count, 1, 53, 34, High, "C"},
    {"XID_SOP", 0, 0, 0, DecimalIdentifier, 1, 39, 20, High, "C"},
    {"USB_VID_SOP", 0, 0, 0, Identifier, 1, 73, 38, High, "C"},
    {"PID_SOP", 0, 0, 0, Identifier, 1, 77, 42, High, "C"},
    {"bcdDevice_SOP", 0, 0, 0, Identifier, 1, 77, 42, High, "C"},
    {"Num_SVIDs_Min_SOP", 0, 0, 0, Count, 1, 1, 1, Medium, "C"},
    {"Num_SVIDs_Max_SOP", 0, 0, 0, Count, 1, 1, 1, Medium, "C"},
    {"Active_Cable_Max_Operating_Temp", 0, 0, 0, DegreeCelsius, 1, 0, 0, Low, "N"},
    {"Active_Cable_Shutdown_Temp", 0, 0, 0, DegreeCelsius, 1, 0, 0, Low, "N"},
    {"Active_Cable_USB2_Hub_Hops_Consumed", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"VPD_VBUS_Impedance", 0, 0, 0, MilliOhm, 2, 0, 0, Low, "S6"},
    {"VPD_Ground_Impedance", 0, 0, 0, MilliOhm, 1, 0, 0, Low, "S6"},
    {"Cable_Num_SVIDs_Min", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"Cable_Num_SVIDs_Max", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"USB4_Silicon_VID", 0, 0, 0, Identifier, 1, 1, 1, Medium, "C"},
    {"USB4_Num_Lane_Adapters", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"USB4_Num_USB3_DN_Adapters", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"USB4_Num_DP_IN_Adapters", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"USB4_Num_DP_OUT_Adapters", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"USB4_Num_PCIe_DN_Adapters", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"USB4_Num_Unused_Adapters", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"USB4_TBT3_VID", 0, 0, 0, Identifier, 1, 1, 1, Medium, "C"},
    {"USB4_PCIe_Switch_Vendor_ID", 0, 0, 0, Identifier, 1, 1, 1, Medium, "C"},
    {"USB4_PCIe_Switch_Device_ID", 0, 0, 0, Identifier, 1, 1, 1, Medium, "C"},
    {"USB4_Num_PCIe_Endpoints", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"Src_PDO_Voltage", kFixed, 0, 0, MilliVolt, 50, 99, 60, High, "C S2 S5"},
    {"Src_PDO_Max_Current", kFixed, 0, 0, MilliAmpere, 10, 99, 60, High, "C S2 S5"},
    {"Src_PDO_Max_Current", kVariable, 0, 0, MilliAmpere, 10, 0, 0, Medium, "S2"},
    {"Src_PDO_Max_Current", kAugmented, kPps, 0, MilliAmpere, 50, 4, 2, High, "C S2 S5"},
    {"Src_PDO_Min_Voltage", kBattery | kVariable, 0, 0, MilliVolt, 50, 0, 0, Medium, "S2"},
    {"Src_PDO_Min_Voltage", kAugmented, 0, 0, MilliVolt, 100, 4, 2, High, "C S2 S5"},
    {"Src_PDO_Max_Voltage", kBattery | kVariable, 0, 0, MilliVolt, 50, 0, 0, Medium, "S2"},
    {"Src_PDO_Max_Voltage", kAugmented, 0, 0, MilliVolt, 100, 4, 2, High, "C S2 S5"},
    {"Src_PDO_Max_Power", kBattery, 0, 0, MilliWatt, 250, 0, 0, Medium, "S2"},
    {"Src_PDO_PDP_Rating", kAugmented, kEprAvs, 0, Watt, 1, 0, 0, Low, "N"},
    {"Src_PD_OCP_OC_Debounce", 0, 0, 0, MilliSecond, 1, 6, 6, High, "C S7"},
    {"Src_PD_OCP_OC_Threshold", 0, 0, 0, MilliAmpere, 10, 64, 35, High, "C S7"},
    {"Src_PD_OCP_UV_Debounce", 0, 0, 0, MilliSecond, 1, 10, 5, High, "C"},
    {"Src_PD_OCP_UV_Threshold", 0, 0, kVoltageThreshold, MilliVolt, 10, 10, 5, High, "C"},
    {"Src_PD_OCP_UV_Threshold", 0, 0, kPercentageThreshold, Percent, 1, 2, 1, Medium, "C"},
    {"Snk_PDO_Voltage", kFixed, 0, 0, MilliVolt, 50, 172, 75, High, "C S2 S3 S5"},
    {"Snk_PDO_Op_Power", kBattery, 0, 0, MilliWatt, 250, 74, 40, High, "C S2 S3"},
    {"Snk_PDO_Min_Voltage", kBattery, 0, 0, MilliVolt, 50, 74, 40, High, "C S2 S3"},
    {"Snk_PDO_Min_Voltage", kVariable, 0, 0, MilliVolt, 50, 74, 40, High, "C S2 S3"},
    {"Snk_PDO_Min_Voltage", kAugmented, 0, 0, MilliVolt, 100, 14, 14, High, "C S2 S3 S5"},
    {"Snk_PDO_Max_Voltage", kBattery, 0, 0, MilliVolt, 50, 74, 40, High, "C S2 S3"},
    {"Snk_PDO_Max_Voltage", kVariable, 0, 0, MilliVolt, 50, 74, 40, High, "C S2 S3"},
    {"Snk_PDO_Max_Voltage", kAugmented, 0, 0, MilliVolt, 100, 14, 14, High, "C S2 S3 S5"},
    {"Snk_PDO_Op_Current", kFixed, 0, 0, MilliAmpere, 10, 172, 75, High, "C S2 S3 S5"},
    {"Snk_PDO_Op_Current", kVariable, 0, 0, MilliAmpere, 10, 74, 40, High, "C S2 S3"},
    {"Snk_PDO_Op_Current", kAugmented, kPps, 0, MilliAmpere, 50, 14, 14, High, "C S2 S3"},
    {"Snk_PDO_PDP_Rating", kAugmented, kEprAvs, 0, Watt, 1, 0, 0, Medium, "S5"},
    {"SVID_SOP", 0, 0, 0, Identifier, 1, 0, 0, Medium, "S7"},
    {"SVID_Num_Modes_Min_SOP", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"SVID_Num_Modes_Max_SOP", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"SVID_Mode_Recog_Mask_SOP", 0, 0, 0, Bits, 1, 0, 0, Medium, "N S5"},
    {"SVID_Mode_Recog_Value_SOP", 0, 0, 0, Bits, 1, 0, 0, Medium, "S7"},
    {"SVID_Num_Modes_Min", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"SVID_Num_Modes_Max", 0, 0, 0, Count, 1, 0, 0, Medium, "N"},
    {"Product_VID", 0, 0, 0, Identifier, 1, 4, 4, High, "C"},
    {"PD_Power_As_Source_Guaranteed", 0, 0, 0, MilliWatt, 1, 1, 1, Medium, "C"},
};
// clang-format on

}  // namespace

std::span<const FieldUnit> Units() { return kUnits; }

}  // namespace vifanalysis

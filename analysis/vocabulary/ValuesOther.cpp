// The values of enumerations: fields outside the definition table.
#include "ValueTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;

// A table with a row to a line. Where two values were seen in two files, which file has which is not known, and each
// value has the editions of both.
// clang-format off
constexpr FieldValue kValues[] = {
    {"Port_Managed_Guaranteed_Type", 0, "Managed Capability", 22, {{3, 26}, {3, 32}}, High, "C S4"},
    {"Port_Managed_Guaranteed_Type", 1, "Guaranteed Capability", 10, {{3, 27}, {3, 36}}, High, "C S4"},
    {"Structured_VDM_Version_SOP", 0, "V1.0", 45, {{1, 11}, {1, 22}}, High, "C S5"},
    {"Structured_VDM_Version_SOP", 1, "V2.0", 0, {}, Medium, "S5"},
    {"DPAM_Version", 0, "DPAM Version 2.0 or earlier", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"DP_Alt_Mode_Device_Type", 0, "DisplayPort Sink (Display/Dock)", 1, {{3, 26}, {3, 32}}, High, "C"},
    {"DP_Alt_Mode_Device_Type", 1, "DisplayPort Source (Notebook)", 1, {{3, 26}, {3, 32}}, High, "C"},
    {"DP_Signaling_Rate_Support", 0, "HBR3 Supported", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_DP_Alt_Mode_Version", 0, "DPAM Version 2.0 or earlier", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_DP_Capability", 2, "DP_Source_Capable", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_DP_Multifunction_Preferred", 0, "No preference for multifunction", 1, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_DP_Multifunction_Preferred", 1, "Multifunction is preferred", 1, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_DP_Receptacle_Indication", 1, "DP on USB-C Receptacle", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_DP_Source_Pin_Assignments", 7,
     "DP_Src_Pin_Assignments_C, DP_Src_Pin_Assignments_D, DP_Src_Pin_Assignments_E",
     2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_DP_Src_Sink_Device_Connected", 1, "DP Source Connected", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_DP_Suspend_Support", 0, "No preference for Low Power entry", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_Signaling_For_Transport_Of_DisplayPort_Protocol", 0, "Reserved", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOP_USB2_Not_Used", 0, "USB2.0 may be needed", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOPP_DPAM_Version", 0, "DPAM Version 2.0 or earlier", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOPP_DP_Active_Component", 0, "Passive Cable", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOPP_DP_Signaling_Rate", 1, "HBR3", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOPP_DP_Sink_Pin_Assignments", 0, "Pin Assignment C & D", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOPP_DP_Src_Pin_Assignments", 0, "Pin Assignment C & D", 2, {{3, 26}, {3, 32}}, High, "C"},
    {"SOPP_DP_UHBR13p5_Support", 0, "UHBR13.5 Not Supported", 2, {{3, 26}, {3, 32}}, High, "C"},
};
// clang-format on

}  // namespace

std::span<const FieldValue> OtherValues() { return kValues; }

}  // namespace vifanalysis

// Fields of optional content, which declares the DisplayPort alternate mode.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"DP_Modes_Count", eVifLocComponent, Number, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Number of DisplayPort modes that the text file declares."},
    {"DP_mode#_Dfp_D_A_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment A as DFP_D?"},
    {"DP_mode#_Dfp_D_B_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment B as DFP_D?"},
    {"DP_mode#_Dfp_D_C_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment C as DFP_D?"},
    {"DP_mode#_Dfp_D_D_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment D as DFP_D?"},
    {"DP_mode#_Dfp_D_E_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment E as DFP_D?"},
    {"DP_mode#_Dfp_D_F_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment F as DFP_D?"},
    {"DP_mode#_Port_Cap", eVifLocComponent, Enumeration, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Port capability of the DisplayPort mode."},
    {"DP_mode#_Receptacle", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Is DisplayPort presented on a receptacle?"},
    {"DP_mode#_Support_DPv13", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support DisplayPort 1.3 signaling?"},
    {"DP_mode#_Support_UsbGen2", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support USB Gen 2 signaling?"},
    {"DP_mode#_Ufp_D_A_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment A as UFP_D?"},
    {"DP_mode#_Ufp_D_B_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment B as UFP_D?"},
    {"DP_mode#_Ufp_D_C_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment C as UFP_D?"},
    {"DP_mode#_Ufp_D_D_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment D as UFP_D?"},
    {"DP_mode#_Ufp_D_E_Supported", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Does the DisplayPort mode support pin assignment E as UFP_D?"},
    {"DP_mode#_Usb20_Not_Used", eVifLocComponent, Boolean, {{1, 36}, {1, 36}}, 1, InNone, High, "C",
     "Is USB 2.0 unused in the DisplayPort mode?"},
    {"DisplayPort_Product_Summary", eVifLocUnset, Group, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Optional group that sums up the DisplayPort capabilities of the product."},
    {"DisplayPort_Status", eVifLocUnset, Group, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Optional group with the DisplayPort status of the port."},
    {"SOP_DP_Capabilities", eVifLocUnset, Group, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Optional group with the DisplayPort capabilities of the port."},
    {"SOPP_DisplayPort_Capabilities", eVifLocUnset, Group, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Optional group with the DisplayPort capabilities of the cable plug."},
    {"DPAM_Version", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Version of the DisplayPort alternate mode (DPAM) that the product follows."},
    {"DP_Alt_Mode_Device_Type", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Is the product a DisplayPort source or a DisplayPort sink?"},
    {"DP_Signaling_Rate_Support", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Highest DisplayPort signaling rate of the product."},
    {"SOP_DP_Alt_Mode_Version", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "DPAM version in the port's DisplayPort capabilities."},
    {"SOP_DP_Capability", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "DisplayPort roles in the port's DisplayPort capabilities."},
    {"SOP_DP_Multifunction_Preferred", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Does the port prefer multifunction?"},
    {"SOP_DP_Receptacle_Indication", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Does the port present DisplayPort on a receptacle?"},
    {"SOP_DP_Sink_Pin_Assignments", eVifLocUnset, Number, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Pin assignments of the port as a DisplayPort sink."},
    {"SOP_DP_Source_Pin_Assignments", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Pin assignments of the port as a DisplayPort source."},
    {"SOP_DP_Src_Sink_Device_Connected", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Is a DisplayPort source or sink connected?"},
    {"SOP_DP_Suspend_Support", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Does the port prefer the low-power state?"},
    {"SOP_Signaling_For_Transport_Of_DisplayPort_Protocol", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2,
     InNone, Low, "C N",
     "Signaling of the port for the DisplayPort protocol."},
    {"SOP_USB2_Not_Used", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Can the port do without USB 2.0 in the mode?"},
    {"SOPP_DPAM_Version", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "DPAM version in the cable plug's DisplayPort capabilities."},
    {"SOPP_DP_Active_Component", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Active component of the cable, if it has one."},
    {"SOPP_DP_Signaling_Rate", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "DisplayPort signaling rate of the cable."},
    {"SOPP_DP_Sink_Pin_Assignments", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Pin assignments of the cable towards a DisplayPort sink."},
    {"SOPP_DP_Src_Pin_Assignments", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Pin assignments of the cable towards a DisplayPort source."},
    {"SOPP_DP_UHBR13p5_Support", eVifLocUnset, Enumeration, {{3, 26}, {3, 32}}, 2, InNone, Low, "C N",
     "Does the cable support UHBR13.5?"},
};
// clang-format on

}  // namespace

std::span<const FieldRow> OptionalContentFields() { return kRows; }

}  // namespace vifanalysis

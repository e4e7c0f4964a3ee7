// The fields of shared source power, USB data and Battery Charging.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"Product_Total_Source_Power_mW", eVifLocComponent, Number, {{2, 1}, {3, 36}}, 62, InBoth, Medium, "C N",
     "Power that all ports of the product can source together."},
    {"Port_Source_Power_Type", eVifLocComponent, Enumeration, {{2, 1}, {3, 36}}, 62, InBoth, Medium, "C S2",
     "Is the port's source power assured, or shared with other ports?"},
    {"Port_Source_Power_Gang", eVifLocComponent, Text, {{3, 22}, {3, 32}}, 17, InBoth, Medium, "C N",
     "Name of the gang of ports that share source power with this one."},
    {"Port_Source_Power_Gang_Max_Power", eVifLocComponent, Number, {{3, 22}, {3, 32}}, 17, InBoth, Medium, "C N",
     "Power that the ports of the gang can source together."},
    {"Host_Supports_USB_Data", eVifLocComponent, Boolean, {{3, 19}, {3, 36}}, 42, InBoth, High, "S4",
     "Does the port carry USB data as a host?"},
    {"Host_Speed", eVifLocComponent, Enumeration, {{3, 19}, {3, 36}}, 42, InBoth, High, "S2 C",
     "Highest USB signaling rate of the port as a host."},
    {"Host_Contains_Captive_Retimer", eVifLocComponent, Boolean, {{3, 19}, {3, 36}}, 42, InBoth, Medium, "N",
     "Is a captive retimer part of the host port?"},
    {"Host_Truncates_DP_For_tDHPResponse", eVifLocComponent, Boolean, {{3, 19}, {3, 36}}, 42, InBoth, Low, "N",
     "Does the host truncate a data packet to meet tDHPResponse?",
     "That DP means data packet is a guess."},
    {"Host_Gen1x1_tLinkTurnaround", eVifLocComponent, Number, {}, 0, InBoth, Low, "N",
     "Link turnaround time of the host at Gen 1x1 (tLinkTurnaround)."},
    {"Host_Gen2x1_tLinkTurnaround", eVifLocComponent, Number, {}, 0, InBoth, Low, "N",
     "Link turnaround time of the host at Gen 2x1 (tLinkTurnaround)."},
    {"Host_Is_Embedded", eVifLocComponent, Boolean, {{3, 19}, {3, 36}}, 42, InBoth, Medium, "N",
     "Is the host an embedded host?"},
    {"Host_Suspend_Supported", eVifLocComponent, Boolean, {{3, 19}, {3, 36}}, 42, InBoth, Medium, "N",
     "Can the host suspend the bus?"},
    {"Is_DFP_On_Hub", eVifLocComponent, Boolean, {{3, 19}, {3, 36}}, 42, InBoth, Medium, "N",
     "Is the port a DFP of a hub?"},
    {"Hub_Port_Number", eVifLocComponent, Number, {}, 0, InBoth, Medium, "N",
     "Number of the port on its hub."},
    {"Device_Supports_USB_Data", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, High, "S4",
     "Does the port carry USB data as a device?"},
    {"Device_Speed", eVifLocComponent, Enumeration, {{1, 36}, {3, 36}}, 52, InBoth, High, "S2 C",
     "Highest USB signaling rate of the port as a device."},
    {"Device_Max_USB2_Speed", eVifLocComponent, Enumeration, {{3, 32}, {3, 36}}, 2, InNone, High, "S4 C",
     "Highest USB 2.0 speed of the device."},
    {"Device_Contains_Captive_Retimer", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 3, InBoth, Medium, "N",
     "Is a captive retimer part of the device port?"},
    {"Device_Truncates_DP_For_tDHPResponse", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Low, "N",
     "Does the device truncate a data packet to meet tDHPResponse?",
     "That DP means data packet is a guess."},
    {"Device_Gen1x1_tLinkTurnaround", eVifLocComponent, Number, {}, 0, InBoth, Low, "N",
     "Link turnaround time of the device at Gen 1x1 (tLinkTurnaround)."},
    {"Device_Gen2x1_tLinkTurnaround", eVifLocComponent, Number, {}, 0, InBoth, Low, "N",
     "Link turnaround time of the device at Gen 2x1 (tLinkTurnaround)."},
    {"BC_1_2_Charging_Port_Type", eVifLocComponent, Enumeration, {{3, 19}, {3, 36}}, 17, InBoth, High, "S2 C",
     "Type of the BC 1.2 charging port: dedicated (DCP) or downstream (CDP)."},
};
// clang-format on

}  // namespace

std::span<const FieldRow> DataFields() { return kRows; }

}  // namespace vifanalysis

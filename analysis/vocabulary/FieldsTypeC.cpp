// The fields of a USB Type-C port.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"Type_C_Can_Act_As_Host", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 180, InBoth, High, "S1 S4",
     "Can the port act as a USB host?"},
    {"Type_C_Can_Act_As_Device", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 180, InBoth, High, "S1 S4",
     "Can the port act as a USB device?"},
    {"Type_C_Implements_Try_SRC", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 145, InBoth, High, "S5",
     "Does the dual-role port prefer to be the source (Try.SRC)?"},
    {"Type_C_Implements_Try_SNK", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 145, InBoth, High, "S5",
     "Does the dual-role port prefer to be the sink (Try.SNK)?"},
    {"Type_C_Supports_Audio_Accessory", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 180, InBoth, Medium, "S5 N",
     "Does the port support the analog audio accessory?"},
    {"Type_C_Supports_VCONN_Powered_Accessory", eVifLocComponent, Boolean, {{1, 11}, {3, 27}}, 118,
     InBoth, Medium, "S5 N",
     "Does the port support VCONN-powered accessories?"},
    {"Type_C_Is_VCONN_Powered_Accessory", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 122, InBoth, Medium, "S5 N",
     "Is the product itself a VCONN-powered accessory?"},
    {"Type_C_Is_Debug_Target_SRC", eVifLocComponent, Boolean, {{1, 22}, {3, 36}}, 131, InBoth, Medium, "N",
     "Can the port be a debug target as a source?"},
    {"Type_C_Is_Debug_Target_SNK", eVifLocComponent, Boolean, {{1, 22}, {3, 36}}, 144, InBoth, Medium, "N",
     "Can the port be a debug target as a sink?"},
    {"RP_Value", eVifLocComponent, Enumeration, {{2, 1}, {3, 36}}, 62, InBoth, High, "S2 S5",
     "Current that the port advertises with its pull-up Rp: USB default, 1.5 A or 3 A."},
    {"Type_C_Port_On_Hub", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 180, InBoth, Medium, "N",
     "Is the port part of a USB hub?"},
    {"Type_C_Power_Source", eVifLocComponent, Enumeration, {{1, 11}, {3, 36}}, 180, InBoth, High, "S2 S4 S5",
     "What powers the product: a supply of its own, this port, or either."},
    {"Type_C_Sources_VCONN", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 86, InBoth, Medium, "S5 N",
     "Can the port source VCONN?"},
    {"Type_C_Is_Alt_Mode_Controller", eVifLocComponent, Boolean, {{1, 22}, {3, 36}}, 153, InBoth, Medium, "S5 N",
     "Is the product an alternate mode controller?"},
    {"Type_C_Is_Alt_Mode_Adapter", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 121, InBoth, High, "S2",
     "Is the product an alternate mode adapter?"},
};
// clang-format on

}  // namespace

std::span<const FieldRow> TypeCFields() { return kRows; }

}  // namespace vifanalysis

// The fields of a port's discovery responses.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"XID_SOP", eVifLocComponent, Number, {{1, 11}, {3, 36}}, 88, InBoth, High, "S6 S8",
     "XID, the certification number, in the port's discovery response."},
    {"Data_Capable_As_USB_Host_SOP", eVifLocComponent, Boolean, {{3, 17}, {3, 36}}, 42, InBoth, High, "S6 S8",
     "USB host capability in the port's ID Header VDO."},
    {"Data_Capable_As_USB_Device_SOP", eVifLocComponent, Boolean, {{3, 17}, {3, 36}}, 42, InBoth, High, "S6 S8",
     "USB device capability in the port's ID Header VDO."},
    {"Product_Type_UFP_SOP", eVifLocComponent, Enumeration, {{1, 36}, {3, 36}}, 43, InBoth, High, "S6 S8",
     "Product type as a UFP in the port's ID Header VDO."},
    {"Product_Type_DFP_SOP", eVifLocComponent, Enumeration, {{1, 36}, {3, 36}}, 43, InBoth, High, "S6 S8",
     "Product type as a DFP in the port's ID Header VDO."},
    {"DFP_VDO_Port_Number", eVifLocComponent, Number, {{3, 17}, {3, 36}}, 38, InBoth, High, "S4 S6",
     "Port number in the port's DFP VDO."},
    {"Modal_Operation_Supported_SOP", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 83, InBoth, High, "S6 S8",
     "Does the port's ID Header VDO claim support of alternate modes?"},
    {"USB_VID_SOP", eVifLocComponent, Number, {{1, 11}, {3, 36}}, 88, InBoth, High, "S6 S8",
     "Vendor ID in the port's ID Header VDO."},
    {"PID_SOP", eVifLocComponent, Number, {{1, 11}, {3, 36}}, 88, InBoth, High, "S6 S8",
     "Product ID in the port's Product VDO."},
    {"bcdDevice_SOP", eVifLocComponent, Number, {{1, 11}, {3, 36}}, 88, InBoth, High, "S6 S8",
     "Device release number (bcdDevice) in the port's Product VDO."},
    {"SVID_Fixed_SOP", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "S5 N",
     "Does the port always respond with the same SVIDs?"},
    {"Num_SVIDs_Min_SOP", eVifLocComponent, Number, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "S5 N",
     "Lowest number of SVIDs that the port responds with."},
    {"Num_SVIDs_Max_SOP", eVifLocComponent, Number, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "S5 N",
     "Highest number of SVIDs that the port responds with."},
    {"AMA_HW_Vers", eVifLocComponent, Number, {{1, 36}, {1, 36}}, 1, InBoth, High, "S6 S8",
     "Hardware version in the VDO of an alternate mode adapter."},
    {"AMA_FW_Vers", eVifLocComponent, Number, {{1, 36}, {1, 36}}, 1, InBoth, High, "S6 S8",
     "Firmware version in the VDO of an alternate mode adapter."},
    {"AMA_VCONN_Reqd", eVifLocComponent, Boolean, {}, 0, InBoth, High, "S6 S8",
     "Does the alternate mode adapter require VCONN?"},
    {"AMA_VCONN_Power", eVifLocComponent, Enumeration, {}, 0, InBoth, High, "S6 S8",
     "VCONN power that the alternate mode adapter needs for full function.",
     "Sources disagree on the type: one has a boolean, two have a code for one of seven powers."},
    {"AMA_VBUS_Reqd", eVifLocComponent, Boolean, {}, 0, InBoth, High, "S6 S8",
     "Does the alternate mode adapter require VBUS?"},
    {"AMA_Superspeed_Support", eVifLocComponent, Enumeration, {{1, 36}, {1, 36}}, 1, InBoth, High, "S5 S6 S8",
     "Highest USB signaling rate in the VDO of an alternate mode adapter."},
};
// clang-format on

}  // namespace

std::span<const FieldRow> IdentityFields() { return kRows; }

}  // namespace vifanalysis

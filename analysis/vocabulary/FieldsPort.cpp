// The fields of a port: what it is, and its USB PD messages.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"Port_Label", eVifLocComponent, Text, {{2, 4}, {3, 36}}, 84, InBoth, High, "S2",
     "Label of the port, as marked on the picture of the product that is submitted with the file."},
    {"Connector_Type", eVifLocComponent, Enumeration, {{1, 36}, {3, 36}}, 135, InBoth, High, "S2 S5 C",
     "Type of the component's USB connector."},
    {"USB4_Supported", eVifLocComponent, Boolean, {{3, 10}, {3, 36}}, 83, InBoth, Medium, "N",
     "Does the component support USB4?"},
    {"USB4_Router_Index", eVifLocComponent, Number, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "N",
     "Index of the USB4 router that the port is connected to."},
    {"USB_PD_Support", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 116, InBoth, High, "S4",
     "Does the component support USB Power Delivery?"},
    {"PD_Port_Type", eVifLocComponent, Enumeration, {{1, 36}, {3, 36}}, 114, InBoth, High, "S2 S4 S5",
     "Power roles of the port under USB PD, from consumer only to dual role, or the e-marker of a cable."},
    {"Type_C_State_Machine", eVifLocComponent, Enumeration, {{1, 11}, {3, 36}}, 180, InBoth, High, "S2 S4 S5",
     "USB Type-C connection state machine that the port runs: source, sink or dual role."},
    {"Port_Battery_Powered", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 135, InBoth, Medium, "S4 N",
     "Can the product run from a battery?"},
    {"BC_1_2_Support", eVifLocComponent, Enumeration, {{1, 40}, {3, 36}}, 134, InBoth, High, "S1 S2",
     "Battery Charging 1.2 roles of the port: none, portable device, charging port or both."},
    {"Captive_Cable", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 180, InBoth, High, "S4",
     "Does the component have a captive cable or plug instead of a receptacle?"},
    {"Captive_Cable_Is_eMarked", eVifLocComponent, Boolean, {{3, 17}, {3, 17}}, 1, In3_18, Medium, "N",
     "Does the captive cable contain an e-marker?"},
    {"PD_Spec_Revision_Major", eVifLocComponent, Number, {{3, 10}, {3, 36}}, 81, InBoth, High, "S2 S4",
     "Major number of the USB PD specification revision, such as the 3 of revision 3.1."},
    {"PD_Spec_Revision_Minor", eVifLocComponent, Number, {{3, 10}, {3, 36}}, 81, InBoth, High, "S2 S4",
     "Minor number of the USB PD specification revision, such as the 1 of revision 3.1."},
    {"PD_Spec_Version_Major", eVifLocComponent, Number, {{3, 10}, {3, 36}}, 81, InBoth, High, "S2 S4",
     "Major number of that revision's version."},
    {"PD_Spec_Version_Minor", eVifLocComponent, Number, {{3, 10}, {3, 36}}, 81, InBoth, High, "S2 S4",
     "Minor number of that revision's version."},
    {"PD_Specification_Revision", eVifLocComponent, Enumeration, {{1, 11}, {3, 36}}, 178, InBoth, High, "S2 S5 C",
     "Code for USB PD revision 2 or 3."},
    {"SOP_Capable", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 178, InBoth, Medium, "S5 N",
     "Does the component exchange PD messages with its port partner (SOP)?"},
    {"SOP_P_Capable", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 178, InBoth, Medium, "S5 N",
     "Can the component exchange PD messages with the near cable plug (SOP')?"},
    {"SOP_PP_Capable", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 178, InBoth, Medium, "S5 N",
     "Can the component exchange PD messages with the far cable plug (SOP'')?"},
    {"SOP_P_Debug_Capable", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 178, InBoth, Medium, "S5 N",
     "Can the component send and receive SOP'_Debug packets?"},
    {"SOP_PP_Debug_Capable", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 178, InBoth, Medium, "S5 N",
     "Can the component send and receive SOP''_Debug packets?"},
    {"Manufacturer_Info_Supported_Port", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 133, InBoth, High, "S2",
     "Does the port respond to Get_Manufacturer_Info?"},
    {"Manufacturer_Info_VID_Port", eVifLocComponent, Number, {{2, 1}, {3, 36}}, 28, InBoth, Medium, "S5 N",
     "Vendor ID in the port's manufacturer info."},
    {"Manufacturer_Info_PID_Port", eVifLocComponent, Number, {{2, 1}, {3, 36}}, 28, InBoth, Medium, "S5 N",
     "Product ID in the port's manufacturer info."},
    {"Chunking_Implemented_SOP", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 133, InBoth, Medium, "S1 N",
     "Can the port send and receive extended messages in chunks?"},
    {"Unchunked_Extended_Messages_Supported", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 133, InBoth, Medium, "N",
     "Can the port send and receive extended messages unchunked?"},
    {"Security_Msgs_Supported_SOP", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 133, InBoth, High, "S2",
     "Does the port support Security_Request and Security_Response?"},
    {"Unconstrained_Power", eVifLocComponent, Boolean, {{1, 40}, {3, 36}}, 132, InBoth, Medium, "S1 S5",
     "Does the port report a power supply that it need not economize on?",
     "Renamed from Externally_Powered in revision 0.95 of the format."},
    {"Num_Fixed_Batteries", eVifLocComponent, Number, {{1, 36}, {3, 36}}, 133, InBoth, High, "S2 S4",
     "Number of batteries that are built into the product."},
    {"Num_Swappable_Battery_Slots", eVifLocComponent, Number, {{1, 36}, {3, 36}}, 133, InBoth, High, "S4",
     "Number of slots for batteries that the user can swap."},
    {"ID_Header_Connector_Type_SOP", eVifLocComponent, Enumeration, {{3, 10}, {3, 36}}, 81, InBoth, High, "S6 S2",
     "Connector type, receptacle or plug, in the port's ID Header VDO."},
    {"USB_Comms_Capable", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 178, InBoth, High, "S4",
     "Can the product communicate over USB as a host or as a device?"},
    {"DR_Swap_To_DFP_Supported", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 177, InBoth, High, "S3",
     "Does the port accept a data role swap from UFP to DFP?"},
    {"DR_Swap_To_UFP_Supported", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 177, InBoth, High, "S3",
     "Does the port accept a data role swap from DFP to UFP?"},
    {"VCONN_Swap_To_On_Supported", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 178, InBoth, High, "S3",
     "Does the port accept a VCONN swap that makes it the VCONN source?"},
    {"VCONN_Swap_To_Off_Supported", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 178, InBoth, High, "S3",
     "Does the port accept a VCONN swap that ends its role as VCONN source?"},
    {"Responds_To_Discov_SOP_UFP", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 133, InBoth, High, "S8 S4",
     "Does the port respond to discovery as a UFP?"},
    {"Responds_To_Discov_SOP_DFP", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 133, InBoth, High, "S8 S4",
     "Does the port respond to discovery as a DFP?"},
    {"Attempts_Discov_SOP", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 178, InBoth, Medium, "S5 N",
     "Does the port start discovery of its port partner?"},
    {"Power_Interruption_Available", eVifLocComponent, Enumeration, {{3, 15}, {3, 36}}, 77, In3_18, Medium, "C N",
     "Which of the product's supplies, AC or DC, a tester can interrupt, if any."},
    {"Data_Reset_Supported", eVifLocComponent, Boolean, {{3, 17}, {3, 36}}, 71, In3_18, Medium, "N",
     "Does the port support Data_Reset?"},
    {"Enter_USB_Supported", eVifLocComponent, Boolean, {{3, 17}, {3, 36}}, 71, In3_18, Medium, "N",
     "Does the port support Enter_USB?"},
};
// clang-format on

}  // namespace

std::span<const FieldRow> PortFields() { return kRows; }

}  // namespace vifanalysis

// The names of fields other than the canonical ones, in the order of their fields.
#include <analysis/Vocabulary.h>

namespace vifanalysis {

namespace {

using enum Confidence;
using enum NameKind;

// Each name has a line of facts and, where that is worth saying, a line on how they are known. Formatting would tear
// them apart.
// clang-format off
constexpr FieldSpelling kSpellings[] = {
    {"$VIF_Specification", "VIF_Specification", TextForm, High, 96, {{1, 11}, {2, 1}}, "C"},
    {"$VIF_Producer", "VIF_Producer", TextForm, High, 96, {{1, 11}, {2, 1}}, "C"},
    {"$Vendor_Name", "Vendor_Name", TextForm, High, 88, {{1, 11}, {2, 1}}, "C"},
    {"$Vendor_name", "Vendor_Name", OtherSpelling, High, 8, {{1, 11}, {1, 11}}, "C S2",
     "One generator wrote it so until test software was found not to show the name."},
    {"$Model_Part_Number", "Model_Part_Number", TextForm, High, 2, {{1, 36}, {2, 1}}, "C"},
    {"$Product_Name", "Model_Part_Number", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C S5",
     "Headers of about edition 1.00 have it in this place; from edition 1.36 on there is only Model_Part_Number."},
    {"$Product_Revision", "Product_Revision", TextForm, High, 2, {{1, 36}, {2, 1}}, "C"},
    {"$Version_Info", "Product_Revision", OlderField, Medium, 0, {}, "S5",
     "Headers of about edition 1.00 have it in this place."},
    {"$TID", "TID", TextForm, High, 2, {{1, 36}, {2, 1}}, "C"},
    {"$Port_Label", "Port_Label", TextForm, High, 2, {{1, 36}, {2, 1}}, "C"},
    {"UUT_Device_Type", "PD_Port_Type", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C S5",
     "The numbers are the same, and headers of about edition 1.00 have one or the other."},
    {"Type_C_Battery_Powered", "Port_Battery_Powered", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C S5",
     "A header of edition 1.00 has both; from edition 1.32 on there is only Port_Battery_Powered."},
    {"Type_C_BC_1_2_Support", "BC_1_2_Support", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C S5",
     "A header of edition 1.00 has both; from edition 1.32 on there is only BC_1_2_Support."},
    {"Externally_Powered", "Unconstrained_Power", OlderField, High, 25, {{1, 11}, {1, 11}}, "C S1 S5",
     "Renamed in revision 0.95 of the format; one generator kept the old name until edition 1.11."},
    {"Unconstrained_Powered", "Unconstrained_Power", Mistake, High, 20, {{1, 22}, {1, 22}}, "C S1",
     "One generator wrote it so, for edition 1.22 only."},
    {"Responds_To_Discov_SOP", "Responds_To_Discov_SOP_UFP", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C S5",
     "One field became two; headers of edition 1.00 have the one or the two."},
    {"Responds_To_Discov_SOP", "Responds_To_Discov_SOP_DFP", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C S5",
     "One field became two; headers of edition 1.00 have the one or the two."},
    {"Type_C_Supports_Vconn_Powered_Accessory", "Type_C_Supports_VCONN_Powered_Accessory", OtherSpelling, Medium, 0, {},
     "S5",
     "A header of about edition 1.00 has it so."},
    {"Rp_Value", "RP_Value", OtherSpelling, High, 94, {{1, 11}, {1, 40}}, "C S5",
     "Files of editions 1.11 to 1.40 have it so, files from edition 2.01 on have RP_Value."},
    {"Type_C_Source_Vconn", "Type_C_Sources_VCONN", Mistake, High, 94, {{1, 11}, {1, 40}}, "C S5",
     "Only one generator wrote it so; other sources of the same editions have Type_C_Sources_VCONN."},
    {"Type_C_Is_Alt_Mode_Device", "Type_C_Is_Alt_Mode_Adapter", OlderField, Medium, 20, {{1, 22}, {1, 22}}, "C S5",
     "Headers of edition 1.00 have it in this place, a header of edition 1.32 has Type_C_Is_Alt_Mode_Adapter."},
    {"Type_C_Host_Speed", "Host_Speed", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C N S5",
     "The numbers are the same, as far as they are known; a header of edition 1.00 has it."},
    {"Type_C_Device_Speed", "Device_Speed", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C N S5",
     "The numbers are the same, as far as they are known; edition 1.36 has Device_Speed."},
    {"PD_Power_as_Source", "PD_Power_As_Source", OtherSpelling, High, 83, {{1, 11}, {1, 40}}, "C"},
    {"PD_Power_as_Sink", "PD_Power_As_Sink", OtherSpelling, High, 90, {{1, 11}, {1, 40}}, "C"},
    {"FR_Swap_Reqd_Type_C_Current", "FR_Swap_Reqd_Type_C_Current_As_Initial_Source", OlderField, High, 1,
     {{1, 36}, {1, 36}}, "C S5",
     "Editions 1.32 and 1.36 have it, edition 2.01 has the longer name with the same value and text."},
    {"FR_Swap_Supported_As_Source", "FR_Swap_Supported_As_Initial_Sink", OlderField, Low, 0, {}, "S5",
     "A header of edition 1.32 has it in this place; that it means the same is not certain."},
    {"Data_Capable_as_USB_Host_SOP", "Data_Capable_As_USB_Host_SOP", OtherSpelling, High, 46, {{1, 11}, {1, 36}}, "C"},
    {"Data_Capable_as_USB_Device_SOP", "Data_Capable_As_USB_Device_SOP", OtherSpelling, High, 46,
     {{1, 11}, {1, 36}}, "C"},
    {"Product_Type_SOP", "Product_Type_UFP_SOP", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C S5",
     "One field became two, with the numbers of this one; headers of edition 1.00 have the one or the two."},
    {"Product_Type_SOP", "Product_Type_DFP_SOP", OlderField, Medium, 45, {{1, 11}, {1, 22}}, "C S5",
     "One field became two, with the numbers of the other; headers of edition 1.00 have the one or the two."},
    {"SVID_fixed_SOP", "SVID_Fixed_SOP", OtherSpelling, High, 46, {{1, 11}, {1, 36}}, "C"},
    {"Num_SVIDs_min_SOP", "Num_SVIDs_Min_SOP", OtherSpelling, High, 46, {{1, 11}, {1, 36}}, "C"},
    {"Num_SVIDs_max_SOP", "Num_SVIDs_Max_SOP", OtherSpelling, High, 46, {{1, 11}, {1, 36}}, "C"},
    {"AMA_VCONN_reqd", "AMA_VCONN_Reqd", OtherSpelling, High, 1, {{1, 36}, {1, 36}}, "C S2 S5 S8"},
    {"AMA_VCONN_power", "AMA_VCONN_Power", OtherSpelling, High, 0, {}, "S5 S8"},
    {"AMA_VBUS_reqd", "AMA_VBUS_Reqd", OtherSpelling, High, 1, {{1, 36}, {1, 36}}, "C S2 S5 S8"},
    {"Data_Capable_as_USB_Host", "Data_Capable_As_USB_Host", OtherSpelling, High, 0, {}, "S8"},
    {"Data_Capable_as_USB_Device", "Data_Capable_As_USB_Device", OtherSpelling, High, 0, {}, "S8"},
    {"Type_C_to_Type_C_Capt_Vdm_V2", "Type_C_To_Type_C_Capt_Vdm_V2", OtherSpelling, High, 0, {}, "S8"},
    {"VBUS_through_cable", "VBUS_Through_Cable", OtherSpelling, High, 0, {}, "S8"},
    {"Cable_SOP''_Controller", "Cable_SOP_PP_Controller", Canonical, High, 0, {}, "S8",
     "The definition table has both spellings of SOP''."},
    {"Cable_SOP''_controller", "Cable_SOP_PP_Controller", OtherSpelling, High, 0, {}, "S8"},
    {"SVID#_modes_fixed_SOP", "SVID_Modes_Fixed_SOP", OtherSpelling, High, 21, {{1, 22}, {1, 36}}, "C S2"},
    {"SVID#_num_modes_fixed_SOP", "SVID_Modes_Fixed_SOP", Mistake, High, 25, {{1, 11}, {1, 11}}, "C S2 S5",
     "One generator wrote it so for edition 1.11 and corrected it for 1.22."},
    {"SVID#_num_modes_min_SOP", "SVID_Num_Modes_Min_SOP", OtherSpelling, High, 46, {{1, 11}, {1, 36}}, "C S2"},
    {"SVID#_num_modes_max_SOP", "SVID_Num_Modes_Max_SOP", OtherSpelling, High, 46, {{1, 11}, {1, 36}}, "C S2"},
    {"SVID#_mode#_enter_SOP", "SVID_Mode_Enter_SOP", OtherSpelling, High, 46, {{1, 11}, {1, 36}}, "C S2"},
    {"SVID#_mode#_recog_mask_SOP", "SVID_Mode_Recog_Mask_SOP", OtherSpelling, High, 0, {}, "S5"},
    {"SVID#_mode#_recog_value_SOP", "SVID_Mode_Recog_Value_SOP", OtherSpelling, High, 0, {}, "S5"},
};
// clang-format on

}  // namespace

std::span<const FieldSpelling> Spellings() noexcept { return kSpellings; }

}  // namespace vifanalysis

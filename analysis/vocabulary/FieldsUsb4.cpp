// The USB4 fields of a port and of the product.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"USB4_Lane_0_Adapter", eVifLocComponent, Number, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "C N",
     "Number of the router's adapter that serves as lane 0 of the port."},
    {"USB4_Max_Speed", eVifLocComponent, Enumeration, {{3, 32}, {3, 36}}, 2, InBoth, High, "S2 C",
     "Highest USB4 generation of the port, which sets its link speed."},
    {"USB4_DFP_Supported", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "N",
     "Can the port be a USB4 DFP?"},
    {"USB4_UFP_Supported", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "N",
     "Can the port be a USB4 UFP?"},
    {"USB4_USB3_Tunneling_Supported", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "N",
     "Does the port support USB3 tunneling?"},
    {"USB4_DP_Tunneling_Supported", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "N",
     "Does the port support DisplayPort tunneling?"},
    {"USB4_PCIe_Tunneling_Supported", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "S2 N",
     "Does the port support PCIe tunneling?"},
    {"USB4_TBT3_Compatibility_Supported", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "S2 N",
     "Is the port compatible with TBT3 products?"},
    {"USB4_CL1_State_Supported", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "N",
     "Does the port support the low-power link state CL1?"},
    {"USB4_CL2_State_Supported", eVifLocComponent, Boolean, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "N",
     "Does the port support the low-power link state CL2?"},
    {"USB4_Num_Retimers", eVifLocComponent, Number, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "C N",
     "Number of on-board retimers of the port."},
    {"USB4_DP_Bit_Rate", eVifLocComponent, Enumeration, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "C N",
     "Highest DisplayPort bit rate of the port."},
    {"USB4_Num_DP_Lanes", eVifLocComponent, Number, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "C N",
     "Number of DisplayPort lanes of the port."},
    {"USB4_DROM_Vendor_ID", eVifLocProduct, Number, {{3, 36}, {3, 36}}, 1, In3_18, Medium, "S3 N",
     "Vendor ID in the device ROM (DROM) of the USB4 product."},
    {"USB4_Dock", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "N",
     "Is the product a USB4 dock?"},
    {"USB4_Device_HiFi_Bi_TMU_Mode_Required", eVifLocProduct, Boolean, {}, 0, In3_18, Low, "N",
     "Does the device need USB4 time synchronization in bidirectional HiFi mode?"},
    {"USB4_Num_Internal_Host_Controllers", eVifLocProduct, Number, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "C N",
     "Number of host controllers in the product."},
    {"USB4_Num_PCIe_DN_Bridges", eVifLocProduct, Number, {{3, 32}, {3, 36}}, 2, InBoth, Medium, "C N",
     "Number of downstream PCIe bridges in the product."},
    {"USB4_Audio_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support the audio class when USB4 falls back?"},
    {"USB4_HID_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support the human interface device class when USB4 falls back?"},
    {"USB4_Printer_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support the printer class when USB4 falls back?"},
    {"USB4_Mass_Storage_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support the mass storage class when USB4 falls back?"},
    {"USB4_Video_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support the video class when USB4 falls back?"},
    {"USB4_Comms_Networking_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support communications and networking when USB4 falls back?"},
    {"USB4_Media_Transfer_Protocol_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support the Media Transfer Protocol when USB4 falls back?"},
    {"USB4_Smart_Card_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support the smart card class when USB4 falls back?"},
    {"USB4_Still_Image_Capture_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support the still image class when USB4 falls back?"},
    {"USB4_Monitor_Device_Supported", eVifLocProduct, Boolean, {}, 0, InBoth, Medium, "S2 N",
     "Does the product support the monitor device class when USB4 falls back?"},
};
// clang-format on

}  // namespace

std::span<const FieldRow> Usb4Fields() { return kRows; }

}  // namespace vifanalysis

// The fields of a USB4 router and its PCIe endpoints.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"USB4_Router_ID#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "S7 N",
     "Number of the router in the product."},
    {"USB4_Silicon_VID#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "S7 N",
     "Vendor ID of the router's silicon."},
    {"USB4_Num_Lane_Adapters#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "N",
     "Number of lane adapters of the router."},
    {"USB4_Num_USB3_DN_Adapters#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "N",
     "Number of downstream USB3 adapters of the router."},
    {"USB4_Num_DP_IN_Adapters#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "N",
     "Number of DP IN adapters of the router."},
    {"USB4_Num_DP_OUT_Adapters#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "N",
     "Number of DP OUT adapters of the router."},
    {"USB4_Num_PCIe_DN_Adapters#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "N",
     "Number of downstream PCIe adapters of the router."},
    {"USB4_TBT3_Not_Supported#", eVifLocRouter, Enumeration, {{3, 36}, {3, 36}}, 1, InBoth, High, "S7 C",
     "Code for a router's TBT3 compatibility: 0 compatible, 1 not."},
    {"USB4_PCIe_Wake_Supported#", eVifLocRouter, Boolean, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "N",
     "Does the router support wake over PCIe?"},
    {"USB4_USB3_Wake_Supported#", eVifLocRouter, Boolean, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "N",
     "Does the router support wake over USB3?"},
    {"USB4_Num_Unused_Adapters#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "N",
     "Number of unused adapters of the router."},
    {"USB4_TBT3_VID#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "S7 N",
     "Vendor ID that the router reports in TBT3 operation."},
    {"USB4_PCIe_Switch_Vendor_ID#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "S7 N",
     "Vendor ID of the router's PCIe switch."},
    {"USB4_PCIe_Switch_Device_ID#", eVifLocRouter, Number, {{3, 36}, {3, 36}}, 1, InBoth, Medium, "S7 N",
     "Device ID of the router's PCIe switch."},
    {"USB4_Num_PCIe_Endpoints#", eVifLocRouter, Number, {}, 0, InBoth, Medium, "N",
     "Number of PCIe endpoints of the router."},
    {"USB4_PCIe_Endpoint#_Vendor_ID#", eVifLocRouterPcie, Number, {}, 0, InBoth, Medium, "N",
     "Vendor ID of the PCIe endpoint."},
    {"USB4_PCIe_Endpoint#_Device_ID#", eVifLocRouterPcie, Number, {}, 0, InBoth, Medium, "N",
     "Device ID of the PCIe endpoint."},
    {"USB4_PCIe_Endpoint#_Class_Code#", eVifLocRouterPcie, Number, {}, 0, InBoth, Medium, "N",
     "PCI class code of the PCIe endpoint."},
};
// clang-format on

}  // namespace

std::span<const FieldRow> RouterFields() { return kRows; }

}  // namespace vifanalysis

// The fields of a source, a sink and their swaps.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"PD_Power_As_Source", eVifLocComponent, Number, {{2, 1}, {3, 36}}, 60, InBoth, High, "S4",
     "Highest power that the port sources under USB PD."},
    {"EPR_Supported_As_Src", eVifLocComponent, Boolean, {{3, 17}, {3, 36}}, 56, In3_18, High, "S3 S4",
     "Does the port support the extended power range (EPR) as a source?"},
    {"USB_Suspend_May_Be_Cleared", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 148, InBoth, Medium, "S6 N",
     "May the source clear the USB Suspend Supported bit, which makes a sink obey USB suspend?"},
    {"Sends_Pings", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 143, InBoth, Medium, "N",
     "Does the port send Ping messages as a source?"},
    {"FR_Swap_Type_C_Current_Capability_As_Initial_Sink", eVifLocComponent, Enumeration, {{3, 10}, {3, 36}}, 59,
     InBoth, Medium, "C N",
     "Current that the port, initially the sink, can source after a fast role swap."},
    {"Master_Port", eVifLocComponent, Boolean, {{3, 10}, {3, 36}}, 59, InBoth, Low, "N",
     "Is the port the master port of the product?"},
    {"Num_Src_PDOs", eVifLocComponent, Number, {{1, 11}, {3, 36}}, 143, InBoth, Medium, "C N",
     "Number of source PDOs that the port declares."},
    {"PD_OC_Protection", eVifLocComponent, Boolean, {{1, 40}, {3, 36}}, 103, InBoth, Medium, "S1 N",
     "Does the source have overcurrent protection that is to be tested?"},
    {"PD_OCP_Method", eVifLocComponent, Enumeration, {{1, 40}, {3, 36}}, 56, InBoth, High, "S2",
     "Response of the source to overcurrent: over-current, under-voltage or both."},
    {"PD_Power_As_Sink", eVifLocComponent, Number, {{2, 1}, {3, 36}}, 74, InBoth, High, "S4",
     "Highest power that the port sinks under USB PD."},
    {"EPR_Supported_As_Snk", eVifLocComponent, Boolean, {{3, 15}, {3, 36}}, 63, In3_18, High, "S3",
     "Does the port support the extended power range (EPR) as a sink?"},
    {"No_USB_Suspend_May_Be_Set", eVifLocComponent, Boolean, {{1, 36}, {3, 36}}, 122, InBoth, High, "S3",
     "May the sink set No USB Suspend in a request, so as to draw power during USB suspend?"},
    {"GiveBack_May_Be_Set", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 164, InBoth, High, "S3",
     "May the sink set GiveBack in a request, and so drop to its minimum current when told to?"},
    {"Higher_Capability_Set", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 164, InBoth, High, "S3",
     "Does the sink say that it needs more than 5 V for full operation?"},
    {"FR_Swap_Reqd_Type_C_Current_As_Initial_Source", eVifLocComponent, Enumeration, {{2, 1}, {3, 36}}, 74,
     InBoth, High, "S3",
     "Current that the port, initially the source, needs after a fast role swap; 0 for no fast role swap."},
    {"Num_Snk_PDOs", eVifLocComponent, Number, {{1, 11}, {3, 36}}, 164, InBoth, High, "S3",
     "Number of PDOs in the port's sink capabilities."},
    {"Accepts_PR_Swap_As_Src", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 129, InBoth, High, "S3",
     "Does the port, as the source, ever accept a power role swap?"},
    {"Accepts_PR_Swap_As_Snk", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 129, InBoth, High, "S3",
     "Does the port, as the sink, ever accept a power role swap?"},
    {"Requests_PR_Swap_As_Src", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 129, InBoth, High, "S3",
     "May the port, as the source, request a power role swap?"},
    {"Requests_PR_Swap_As_Snk", eVifLocComponent, Boolean, {{1, 11}, {3, 36}}, 88, InBoth, High, "S3",
     "May the port, as the sink, request a power role swap?"},
    {"FR_Swap_Supported_As_Initial_Sink", eVifLocComponent, Boolean, {{1, 40}, {3, 36}}, 92, InBoth, Medium, "N",
     "Does the port, initially the sink, support a fast role swap?"},
};
// clang-format on

}  // namespace

std::span<const FieldRow> PowerFields() { return kRows; }

}  // namespace vifanalysis

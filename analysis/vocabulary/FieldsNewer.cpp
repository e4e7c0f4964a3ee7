// Fields that are newer than the definition table.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"Has_Invariant_PDOs", eVifLocComponent, Boolean, {{3, 22}, {3, 36}}, 38, InNone, High, "S4 C",
     "Does the port always offer the same source PDOs?"},
    {"Port_Managed_Guaranteed_Type", eVifLocComponent, Enumeration, {{3, 26}, {3, 36}}, 32, InNone, High, "S4 C",
     "May the port change what it offers (managed), or is its offer always the same (guaranteed)?"},
    {"PD_Power_As_Source_Guaranteed", eVifLocComponent, Number, {{3, 36}, {3, 36}}, 1, InNone, Low, "C",
     "Power that the port guarantees as a source under USB PD.",
     "Seen in one file, which no editor wrote."},
    {"USB4_Asymmetric_3_Rx_Support", eVifLocComponent, Boolean, {{3, 32}, {3, 32}}, 1, InNone, Medium, "C",
     "Does the port support an asymmetric Gen 4 link with three receivers?",
     "Seen in one file."},
    {"USB4_Asymmetric_3_Tx_Support", eVifLocComponent, Boolean, {{3, 32}, {3, 32}}, 1, InNone, Medium, "C",
     "Does the port support an asymmetric Gen 4 link with three transmitters?",
     "Seen in one file."},
    {"USB4_CL0s_State_Supported", eVifLocComponent, Boolean, {{3, 32}, {3, 32}}, 1, InNone, Medium, "C",
     "Does the port support the low-power link state CL0s?",
     "Seen in one file."},
    {"USB4_Max_USB3_Tunneling_Speed", eVifLocComponent, Enumeration, {{3, 32}, {3, 32}}, 1, InNone, Medium, "C",
     "Highest USB3 signaling rate that the port tunnels, with the texts of Host_Speed.",
     "Seen in one file."},
};
// clang-format on

}  // namespace

std::span<const FieldRow> NewerFields() { return kRows; }

}  // namespace vifanalysis

// The end of the definition table: optional content, and fields out of use.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"OptionalContent", eVifLocUnset, Group, {}, 0, InNone, High, "S3 C",
     "Content in a namespace of its own, such as the capabilities of an alternate mode."},
    {"Type_C_To_Plug_Receptacle", eVifLocComponent, Enumeration, {}, 0, InNone, High, "S2 S6",
     "Is the other end of the cable a plug or a receptacle?",
     "Out of use since edition 3.10.", {3, 10}},
    {"Retimer_Type", eVifLocComponent, Unknown, {}, 0, InNone, Low, "S2 N",
     "Type of a retimer.",
     "Out of use since edition 3.10.", {3, 10}},
    {"Active_Cable_USB2_Hub_Hops_Supported", eVifLocComponent, Number, {}, 0, InNone, Medium, "S2",
     "USB 2.0 hub hops of the active cable; later editions have Active_Cable_USB2_Hub_Hops_Consumed.",
     "Out of use since edition 3.12.", {3, 12}},
    {"Active_Cable_Optically_Isololated", eVifLocComponent, Boolean, {}, 0, InNone, High, "S2",
     "Active_Cable_Optically_Isolated, as some editions misspell it.",
     "Out of use since edition 3.12.", {3, 12}},
    {"Product_VID", eVifLocProduct, Number, {{3, 10}, {3, 12}}, 4, In3_12, Medium, "S2 C",
     "Vendor ID of the product.",
     "Listed for edition 3.12, but not for 3.18.", {3, 18}},
    {"Active_Cable_Operating_Temp_Support", eVifLocComponent, Boolean, {}, 0, In3_12, Medium, "S2 N",
     "Does the active cable report its highest operating temperature?",
     "Listed for edition 3.12, but not for 3.18.", {3, 18}},
    {"Active_Cable_Shutdown_Temp_Support", eVifLocComponent, Boolean, {}, 0, In3_12, Medium, "S2 N",
     "Does the active cable report its shutdown temperature?",
     "Listed for edition 3.12, but not for 3.18.", {3, 18}},
};
// clang-format on

}  // namespace

std::span<const FieldRow> RetiredFields() { return kRows; }

}  // namespace vifanalysis

// Elements of the XML form that are read as fields but are none.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"Vendor", eVifLocAppVersion, Text, {{2, 4}, {3, 36}}, 84, In3_18, High, "C",
     "Maker of the program that wrote the file; part of VIF_Producer."},
    {"Name", eVifLocAppVersion, Text, {{2, 4}, {3, 36}}, 84, In3_18, High, "C",
     "Name of the program that wrote the file; part of VIF_Producer."},
    {"Version", eVifLocAppVersion, Text, {{2, 4}, {3, 36}}, 84, In3_18, High, "C",
     "Version of the program that wrote the file; part of VIF_Producer."},
    {"SOPSVIDList", eVifLocComponent, Group, {{3, 36}, {3, 36}}, 1, InNone, High, "C",
     "List of the port's SVIDs.",
     "A group, not a field; one that a file leaves empty reads as a field without a value."},
};
// clang-format on

}  // namespace

std::span<const FieldRow> XmlStructureFields() { return kRows; }

}  // namespace vifanalysis

// The fields of the file as a whole.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"VIF_Specification", eVifLocVif, Text, {{2, 4}, {3, 36}}, 84, InBoth, High, "S1 C",
     "Edition of the VIF format that the file follows."},
    {"VIF_Producer", eVifLocVif, Text, {}, 0, InNone, High, "S1 C",
     "Program that wrote the file, with its version."},
    {"Vendor_Name", eVifLocVif, Text, {{2, 4}, {3, 36}}, 84, InBoth, High, "S3",
     "Company that submits the product."},
    {"Model_Part_Number", eVifLocVif, Text, {{2, 4}, {3, 36}}, 84, InBoth, High, "S3",
     "Model name or part number that the product is certified under."},
    {"Product_Revision", eVifLocVif, Text, {{2, 4}, {3, 36}}, 84, InBoth, High, "S3",
     "Revision that the product is certified under; the list of certified products has it beside the model number."},
    {"TID", eVifLocVif, Text, {{2, 4}, {3, 36}}, 84, InBoth, High, "S3 S2",
     "Test ID that the certification body assigned to the product."},
    {"VIF_Product_Type", eVifLocVif, Enumeration, {{1, 36}, {3, 36}}, 135, InBoth, High, "S3",
     "What the file is about: a product with ports, a cable or a repeater."},
    {"Certification_Type", eVifLocProduct, Enumeration, {{3, 10}, {3, 36}}, 83, InBoth, High, "S3",
     "Kind of certification sought: end product, reference platform or silicon."},
};
// clang-format on

}  // namespace

std::span<const FieldRow> HeaderFields() { return kRows; }

}  // namespace vifanalysis

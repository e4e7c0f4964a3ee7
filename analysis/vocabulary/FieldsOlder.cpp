// Fields that the definition table no longer has, and that nothing replaces.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"Structured_VDM_Version_SOP", eVifLocComponent, Enumeration, {{1, 11}, {1, 22}}, 45, InNone, Medium, "S5 C",
     "Version of the structured VDMs that the port exchanges.",
     "Gone by edition 1.36, and no later field takes its place.", {1, 36}},
};
// clang-format on

}  // namespace

std::span<const FieldRow> OlderFields() { return kRows; }

}  // namespace vifanalysis

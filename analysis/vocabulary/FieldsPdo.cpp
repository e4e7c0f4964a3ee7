// The fields of source and sink PDOs.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"Src_PDO_Supply_Type#", eVifLocSrcPdo, Enumeration, {{1, 11}, {3, 36}}, 143, InBoth, High, "S2 S5",
     "Supply type of the source PDO: fixed, battery, variable or augmented."},
    {"Src_PDO_APDO_Type#", eVifLocSrcPdo, Number, {}, 0, In3_18, Medium, "S2 S5",
     "Type of the augmented source PDO, such as programmable power supply."},
    {"Src_PDO_Peak_Current#", eVifLocSrcPdo, Enumeration, {{1, 11}, {3, 36}}, 143, InBoth, High, "S2 S5 C",
     "Overload capability of the source PDO, as a percentage of its operating current (IOC)."},
    {"Src_PDO_Voltage#", eVifLocSrcPdo, Number, {{1, 11}, {3, 36}}, 143, InBoth, High, "S2 S5",
     "Voltage of the fixed source PDO."},
    {"Src_PDO_Max_Current#", eVifLocSrcPdo, Number, {{1, 11}, {3, 36}}, 143, InBoth, High, "S2 S5",
     "Maximum current of the source PDO."},
    {"Src_PDO_Min_Voltage#", eVifLocSrcPdo, Number, {{2, 1}, {3, 10}}, 2, InBoth, High, "S2 S5",
     "Minimum voltage of the battery, variable or augmented source PDO."},
    {"Src_PDO_Max_Voltage#", eVifLocSrcPdo, Number, {{2, 1}, {3, 10}}, 2, InBoth, High, "S2 S5",
     "Maximum voltage of the battery, variable or augmented source PDO."},
    {"Src_PDO_Max_Power#", eVifLocSrcPdo, Number, {}, 0, InBoth, High, "S2 S5",
     "Maximum power of the battery source PDO."},
    {"Src_PDO_PDP_Rating#", eVifLocSrcPdo, Number, {}, 0, InNone, Low, "N",
     "PDP rating of the augmented source PDO in the extended power range (EPR)."},
    {"Src_PD_OCP_OC_Debounce#", eVifLocSrcPdo, Number, {{3, 19}, {3, 36}}, 36, InBoth, Medium, "C N",
     "How long the current stays above the threshold before the source reacts."},
    {"Src_PD_OCP_OC_Threshold#", eVifLocSrcPdo, Number, {{3, 19}, {3, 36}}, 36, InBoth, Medium, "C N",
     "Current above which the source reacts."},
    {"Src_PD_OCP_UV_Debounce#", eVifLocSrcPdo, Number, {{3, 32}, {3, 36}}, 7, InBoth, Medium, "C N",
     "How long the voltage stays below the threshold before the source reacts."},
    {"Src_PD_OCP_UV_Threshold_Type#", eVifLocSrcPdo, Enumeration, {{3, 32}, {3, 36}}, 7, InBoth, Medium, "C",
     "Is the under-voltage threshold a voltage or a percentage?"},
    {"Src_PD_OCP_UV_Threshold#", eVifLocSrcPdo, Number, {{3, 32}, {3, 36}}, 7, InBoth, Medium, "C N",
     "Voltage, or percentage of it, below which the source reacts."},
    {"Snk_PDO_Supply_Type#", eVifLocSnkPdo, Enumeration, {{1, 11}, {3, 36}}, 164, InBoth, High, "S2 S3 S5",
     "Supply type of the sink PDO: fixed, battery, variable or augmented."},
    {"Snk_PDO_APDO_Type#", eVifLocSnkPdo, Enumeration, {{3, 15}, {3, 27}}, 7, In3_18, Medium, "S2 S5 C",
     "Type of the augmented sink PDO, such as programmable power supply."},
    {"Snk_PDO_Voltage#", eVifLocSnkPdo, Number, {{1, 11}, {3, 36}}, 164, InBoth, High, "S2 S3 S5",
     "Voltage of the fixed sink PDO."},
    {"Snk_PDO_Op_Power#", eVifLocSnkPdo, Number, {{1, 11}, {3, 32}}, 119, InBoth, High, "S2 S3",
     "Operational power of the battery sink PDO."},
    {"Snk_PDO_Min_Voltage#", eVifLocSnkPdo, Number, {{1, 11}, {3, 32}}, 133, InBoth, High, "S2 S3",
     "Minimum voltage of the battery, variable or augmented sink PDO."},
    {"Snk_PDO_Max_Voltage#", eVifLocSnkPdo, Number, {{1, 11}, {3, 32}}, 133, InBoth, High, "S2 S3",
     "Maximum voltage of the battery, variable or augmented sink PDO."},
    {"Snk_PDO_Op_Current#", eVifLocSnkPdo, Number, {{1, 11}, {3, 36}}, 164, InBoth, High, "S2 S3",
     "Operational current of the sink PDO."},
    {"Snk_PDO_PDP_Rating#", eVifLocSnkPdo, Number, {}, 0, In3_18, Medium, "S2 S5",
     "PDP rating of the augmented sink PDO in the extended power range (EPR)."},
};
// clang-format on

}  // namespace

std::span<const FieldRow> PdoFields() { return kRows; }

}  // namespace vifanalysis

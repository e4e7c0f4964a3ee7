// The values of enumerations: power and PDOs.
#include "ValueTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;

// A table with a row to a line.
// clang-format off
constexpr FieldValue kValues[] = {
    {"FR_Swap_Type_C_Current_Capability_As_Initial_Sink", 0, "FR_Swap not supported",
     40, {{3, 10}, {3, 36}}, High, "C S2"},
    {"FR_Swap_Type_C_Current_Capability_As_Initial_Sink", 2, "1.5A @ 5V", 7, {{3, 26}, {3, 32}}, High, "C"},
    {"FR_Swap_Type_C_Current_Capability_As_Initial_Sink", 3, "3A @ 5V", 15, {{3, 22}, {3, 32}}, High, "C S2"},
    {"PD_OCP_Method", 0, "Over-Current Response", 49, {{1, 40}, {3, 32}}, High, "C S2"},
    {"PD_OCP_Method", 1, "Under-Voltage Response", 5, {{3, 32}, {3, 32}}, High, "C S2"},
    {"PD_OCP_Method", 2, "Both", 1, {{3, 32}, {3, 32}}, High, "C S2"},
    {"FR_Swap_Reqd_Type_C_Current_As_Initial_Source", 0, "FR_Swap not supported", 74, {{2, 1}, {3, 36}}, High, "C S3"},
    {"FR_Swap_Reqd_Type_C_Current_As_Initial_Source", 1, "Default USB Power", 0, {}, Medium, "S3"},
    {"FR_Swap_Reqd_Type_C_Current_As_Initial_Source", 2, "1.5A @ 5V", 0, {}, Medium, "S3"},
    {"FR_Swap_Reqd_Type_C_Current_As_Initial_Source", 3, "3A @ 5V", 0, {}, Medium, "S3"},
    {"Src_PDO_Supply_Type", 0, "Fixed", 143, {{1, 11}, {3, 36}}, High, "C S2 S3 S5"},
    {"Src_PDO_Supply_Type", 1, "Battery", 0, {}, Medium, "S2 S3 S5"},
    {"Src_PDO_Supply_Type", 2, "Variable", 0, {}, Medium, "S2 S3 S5"},
    {"Src_PDO_Supply_Type", 3, "Augmented", 2, {{2, 1}, {3, 10}}, High, "C S2 S3 S5", {}, "PPS", {3, 12}},
    {"Src_PDO_Peak_Current", 0, "100% IOC", 132, {{1, 11}, {3, 36}}, High, "C S2 S5"},
    {"Src_PDO_Peak_Current", 1, "130% IOC", 11, {{3, 32}, {3, 32}}, High, "C"},
    {"Src_PD_OCP_UV_Threshold_Type", 0, "Value", 5, {{3, 32}, {3, 32}}, High, "C"},
    {"Src_PD_OCP_UV_Threshold_Type", 1, "Percentage", 2, {{3, 32}, {3, 36}}, High, "C"},
    {"Snk_PDO_Supply_Type", 0, "Fixed", 164, {{1, 11}, {3, 36}}, High, "C S2 S3 S5"},
    {"Snk_PDO_Supply_Type", 1, "Battery", 119, {{1, 11}, {3, 32}}, High, "C S2 S3 S5"},
    {"Snk_PDO_Supply_Type", 2, "Variable", 119, {{1, 11}, {3, 32}}, High, "C S2 S3 S5"},
    {"Snk_PDO_Supply_Type", 3, "Augmented", 14, {{1, 36}, {3, 27}}, High, "C S2 S3 S5", {}, "PPS", {3, 12}},
    {"Snk_PDO_APDO_Type", 0, "Programmable Power Supply (SPR)", 7, {{3, 15}, {3, 27}}, High, "C"},
};
// clang-format on

}  // namespace

std::span<const FieldValue> PowerValues() { return kValues; }

}  // namespace vifanalysis

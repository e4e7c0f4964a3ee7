// The values of enumerations: USB4, USB data and routers.
#include "ValueTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;

// A table with a row to a line.
// clang-format off
constexpr FieldValue kValues[] = {
    {"USB4_Max_Speed", 0, "Gen 2 (20Gb)", 0, {}, Medium, "S2"},
    {"USB4_Max_Speed", 1, "Gen 3 (40Gb)", 1, {{3, 36}, {3, 36}}, High, "C S2"},
    {"USB4_DP_Bit_Rate", 3, "HBR3", 1, {{3, 36}, {3, 36}}, High, "C S7"},
    {"Port_Source_Power_Type", 0, "Assured", 45, {{2, 1}, {3, 36}}, High, "C S2"},
    {"Port_Source_Power_Type", 1, "Shared", 17, {{3, 22}, {3, 32}}, High, "C S7"},
    {"Host_Speed", 0, "USB 2", 0, {}, Medium, "S2"},
    {"Host_Speed", 1, "USB 3.2 Gen 1x1", 21, {{3, 19}, {3, 30}}, High, "C S2"},
    {"Host_Speed", 2, "USB 3.2 Gen 2x1", 4, {{3, 26}, {3, 36}}, High, "C S2"},
    {"Host_Speed", 3, "USB 3.2 Gen 1x2", 11, {{3, 32}, {3, 32}}, High, "C S2"},
    {"Host_Speed", 4, "USB 3.2 Gen 2x2", 6, {{3, 32}, {3, 32}}, High, "C S2"},
    {"Device_Speed", 0, "USB 2", 50, {{1, 36}, {1, 40}}, High, "C S2"},
    {"Device_Speed", 1, "USB 3.2 Gen 1x1", 0, {}, Medium, "S2"},
    {"Device_Speed", 2, "USB 3.2 Gen 2x1", 0, {}, Medium, "S2"},
    {"Device_Speed", 3, "USB 3.2 Gen 1x2", 0, {}, Medium, "S2"},
    {"Device_Speed", 4, "USB 3.2 Gen 2x2", 1, {{3, 32}, {3, 32}}, High, "C S2"},
    {"Device_Max_USB2_Speed", 2, "High Speed", 1, {{3, 32}, {3, 32}}, High, "C S4"},
    {"BC_1_2_Charging_Port_Type", 1, "CDP", 16, {{3, 19}, {3, 22}}, High, "C S2"},
    {"USB4_TBT3_Not_Supported", 0, "TBT3 Compatible", 1, {{3, 36}, {3, 36}}, High, "C S7"},
    {"USB4_TBT3_Not_Supported", 1, "Not TBT3-Compatible", 0, {}, Medium, "S7"},
};
// clang-format on

}  // namespace

std::span<const FieldValue> DataValues() { return kValues; }

}  // namespace vifanalysis

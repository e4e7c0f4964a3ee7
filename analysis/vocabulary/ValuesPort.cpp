// The values of enumerations: ports and the file as a whole.
#include "ValueTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;

// A table with a row to a line.
// clang-format off
constexpr FieldValue kValues[] = {
    {"VIF_Product_Type", 0, "Port Product", 135, {{1, 36}, {3, 36}}, High, "C S3"},
    {"VIF_Product_Type", 1, "Cable", 0, {}, Medium, "S3"},
    {"VIF_Product_Type", 2, "Repeater", 0, {}, Medium, "S3", {}, "Re-timer", {1, 40}},
    {"Certification_Type", 0, "End Product", 62, {{3, 10}, {3, 36}}, High, "C S3"},
    {"Certification_Type", 1, "Reference Platform", 20, {{3, 19}, {3, 26}}, High, "C S3"},
    {"Certification_Type", 2, "Silicon", 1, {{3, 32}, {3, 32}}, High, "C S3"},
    {"Connector_Type", 0, "Type-A", 0, {}, Medium, "S2 S5"},
    {"Connector_Type", 1, "Type-B", 0, {}, Medium, "S2 S5"},
    {"Connector_Type", 2, "Type-C", 135, {{1, 36}, {3, 36}}, High, "C S2 S5", {"Type-C®", "Type-C™"}},
    {"Connector_Type", 3, "Micro-AB", 0, {}, Medium, "S2"},
    {"PD_Port_Type", 0, "Consumer Only", 27, {{1, 36}, {3, 27}}, High, "C S2 S5", {"SNK"}},
    {"PD_Port_Type", 1, "Consumer/Provider", 0, {}, Medium, "S2 S5"},
    {"PD_Port_Type", 2, "Provider/Consumer", 0, {}, Medium, "S2 S5"},
    {"PD_Port_Type", 3, "Provider Only", 10, {{1, 40}, {3, 27}}, High, "C S2 S5"},
    {"PD_Port_Type", 4, "DRP", 77, {{1, 40}, {3, 36}}, High, "C S2 S5"},
    {"PD_Port_Type", 5, "eMarker", 0, {}, Medium, "S2"},
    {"Type_C_State_Machine", 0, "SRC", 16, {{1, 11}, {3, 27}}, High, "C S2 S5"},
    {"Type_C_State_Machine", 1, "SNK", 35, {{1, 11}, {3, 27}}, High, "C S2 S5"},
    {"Type_C_State_Machine", 2, "DRP", 129, {{1, 11}, {3, 36}}, High, "C S2 S5"},
    {"BC_1_2_Support", 0, "None", 118, {{1, 40}, {3, 36}}, High, "C S2"},
    {"BC_1_2_Support", 1, "Portable Device", 0, {}, Medium, "S2"},
    {"BC_1_2_Support", 2, "Charging Port", 13, {{3, 19}, {3, 19}}, High, "C S2"},
    {"BC_1_2_Support", 3, "Both", 3, {{3, 20}, {3, 22}}, High, "C S2"},
    {"PD_Specification_Revision", 1, "Revision 2", 45, {{1, 11}, {1, 22}}, High, "C S2"},
    {"PD_Specification_Revision", 2, "Revision 3", 133, {{1, 36}, {3, 36}}, High, "C S2", {"Revision 3.0"}},
    {"ID_Header_Connector_Type_SOP", 2, "USB Type-C Receptacle",
     80, {{3, 10}, {3, 36}}, High, "C S6", {"USB Type-C® Receptacle"}},
    {"ID_Header_Connector_Type_SOP", 3, "USB Type-C Plug", 1, {{3, 17}, {3, 17}}, High, "C S6"},
    {"Power_Interruption_Available", 0, "No Interruption Possible", 71, {{3, 15}, {3, 36}}, High, "C S2"},
    {"Power_Interruption_Available", 3, "AC Mains/Wall Power and DC Power", 6, {{3, 26}, {3, 26}}, High, "C"},
    {"RP_Value", 0, "Default", 28, {{1, 11}, {3, 36}}, High, "C S2 S5"},
    {"RP_Value", 1, "1.5A", 65, {{1, 40}, {3, 32}}, High, "C S2 S5"},
    {"RP_Value", 2, "3A", 64, {{1, 11}, {3, 32}}, High, "C S2 S5"},
    {"Type_C_Power_Source", 0, "Externally Powered",
     21, {{1, 36}, {3, 27}}, High, "C S2 S4 S5", {}, "Self-Powered", {1, 36}},
    {"Type_C_Power_Source", 1, "UFP-powered", 47, {{1, 40}, {3, 17}}, High, "C S2 S4 S5"},
    {"Type_C_Power_Source", 2, "Both", 111, {{1, 11}, {3, 32}}, High, "C S2 S4 S5"},
};
// clang-format on

}  // namespace

std::span<const FieldValue> PortValues() { return kValues; }

}  // namespace vifanalysis

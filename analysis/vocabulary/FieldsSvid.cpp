// The fields of SVIDs and their modes.
#include "FieldTables.h"

namespace vifanalysis {

namespace {

using enum Confidence;
using enum FieldType;
using enum Listed;

// Each row has a line of facts, and a line that says what the field declares. Formatting would tear them apart.
// clang-format off
constexpr FieldRow kRows[] = {
    {"SVID#_SOP", eVifLocSopSvid, Number, {{1, 11}, {1, 36}}, 46, InBoth, High, "S5 C",
     "Standard or vendor ID (SVID) that the port has modes for."},
    {"SVID#_Modes_Fixed_SOP", eVifLocSopSvid, Boolean, {}, 0, InBoth, Medium, "S5 N",
     "Does the port always list the same modes for the SVID?"},
    {"SVID#_Num_Modes_Min_SOP", eVifLocSopSvid, Number, {}, 0, InBoth, Medium, "S5 N",
     "Lowest number of modes that the port lists for the SVID."},
    {"SVID#_Num_Modes_Max_SOP", eVifLocSopSvid, Number, {}, 0, InBoth, Medium, "S5 N",
     "Highest number of modes that the port lists for the SVID."},
    {"SVID#_Mode#_Enter_SOP", eVifLocSopSvidMode, Boolean, {}, 0, InBoth, Low, "S5 N",
     "Is the test to enter this mode of the port?"},
    {"SVID#_Mode#_Recog_Mask_SOP", eVifLocSopSvidMode, Number, {}, 0, InBoth, Medium, "S5 N",
     "Bits of the mode VDO that identify this mode of the port."},
    {"SVID#_Mode#_Recog_Value_SOP", eVifLocSopSvidMode, Number, {}, 0, InBoth, Medium, "S5 S7 N",
     "Value of the masked bits that identifies this mode of the port."},
    {"SVID#", eVifLocCableSvid, Number, {}, 0, InBoth, Medium, "S1 N",
     "Standard or vendor ID (SVID) that the cable has modes for."},
    {"SVID#_Modes_Fixed", eVifLocCableSvid, Boolean, {}, 0, InBoth, Medium, "N",
     "Does the cable always list the same modes for the SVID?"},
    {"SVID#_Num_Modes_Min", eVifLocCableSvid, Number, {}, 0, InBoth, Medium, "N",
     "Lowest number of modes that the cable lists for the SVID."},
    {"SVID#_Num_Modes_Max", eVifLocCableSvid, Number, {}, 0, InBoth, Medium, "N",
     "Highest number of modes that the cable lists for the SVID."},
    {"SVID#_Mode#_Enter", eVifLocCableSvidMode, Boolean, {}, 0, InBoth, Low, "N",
     "Is the test to enter this mode of the cable?"},
    {"SVID#_Mode#_Recog_Mask", eVifLocCableSvidMode, Number, {}, 0, InBoth, Medium, "N",
     "Bits of the mode VDO that identify this mode of the cable."},
    {"SVID#_Mode#_Recog_Value", eVifLocCableSvidMode, Number, {}, 0, InBoth, Medium, "N",
     "Value of the masked bits that identifies this mode of the cable."},
};
// clang-format on

}  // namespace

std::span<const FieldRow> SvidFields() { return kRows; }

}  // namespace vifanalysis

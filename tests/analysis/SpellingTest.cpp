// Which written names are misspellings of a known one.
#include "files/Spelling.h"
#include "vocabulary/SpellingMatch.h"

#include <analysis/Vocabulary.h>

#include <gmock/gmock.h>

#include <optional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using testing::UnorderedElementsAre;
using vifanalysis::Respell;

/// The corrected name, "-" where the name is another one.
std::string Corrected(std::string_view written, std::string_view spelling) {
  const std::optional<vifanalysis::Respelling> respelling = Respell(written, spelling);
  return respelling ? respelling->name : "-";
}

unsigned Typos(std::string_view written, std::string_view spelling) {
  const std::optional<vifanalysis::Respelling> respelling = Respell(written, spelling);
  return respelling ? respelling->typos : 1000;
}

TEST(Spelling, OfAWordMayHaveATypo) {
  for (const char* written : {"Host_Sped", "Host_Sspeed", "Host_Speet", "Host_Pseed", "Host_psEed", "Hots_Speed"}) {
    EXPECT_EQ(Corrected(written, "Host_Speed"), "Host_Speed") << written;
    EXPECT_EQ(Typos(written, "Host_Speed"), 1U) << written;
  }
}

TEST(Spelling, OfALongWordMayHaveTwoTypos) {
  EXPECT_EQ(Typos("Modal_Opertoin_Supported_SOP", "Modal_Operation_Supported_SOP"), 2U);
  EXPECT_EQ(Corrected("Modal_Oprtoin_Supported_SOP", "Modal_Operation_Supported_SOP"), "-");
}

TEST(Spelling, OfSeveralWordsMayHaveTypos) {
  EXPECT_EQ(Typos("Modal_Opertion_Suported_SOP", "Modal_Operation_Supported_SOP"), 2U);
}

TEST(Spelling, OfAShortNameMayHaveOneTypo) {
  EXPECT_EQ(Corrected("Ports_Lable", "Port_Label"), "Port_Label");
  EXPECT_EQ(Corrected("Retimr_Tipe", "Retimer_Type"), "Retimer_Type");
  EXPECT_EQ(Corrected("Hos_Sped", "Host_Speed"), "Host_Speed");
  EXPECT_EQ(Corrected("Mastr", "Master"), "Master");
}

TEST(Spelling, LetterCaseIsNotATypo) {
  EXPECT_EQ(Typos("rp_value", "RP_Value"), 0U);
  EXPECT_EQ(Corrected("type_c_sources_vconn", "Type_C_Sources_VCONN"), "Type_C_Sources_VCONN");
}

TEST(Spelling, AnUnderscoreIsNotATypo) {
  EXPECT_EQ(Corrected("SrcPDO_Voltage12", "Src_PDO_Voltage#"), "Src_PDO_Voltage12");
  EXPECT_EQ(Corrected("Src_PDO_Voltage_12", "Src_PDO_Voltage#"), "Src_PDO_Voltage12");
  EXPECT_EQ(Corrected("svid_2_mode_3_enter", "SVID#_Mode#_Enter"), "SVID2_Mode3_Enter");
  EXPECT_EQ(Corrected("PD_Port_Type_", "PD_Port_Type"), "PD_Port_Type");
}

TEST(Spelling, DigitsStandWhereTheSpellingHasAnIndex) {
  EXPECT_EQ(Corrected("SVID1_num_modes_min_SOP", "SVID#_Num_Modes_Min_SOP"), "SVID1_Num_Modes_Min_SOP");
  EXPECT_EQ(Corrected("SVID12_Mode34_Entr_SOP", "SVID#_Mode#_Enter_SOP"), "SVID12_Mode34_Enter_SOP");
  EXPECT_EQ(Corrected("SVID_Mode7_Entr_SOP", "SVID#_Mode#_Enter_SOP"), "SVID_Mode7_Enter_SOP");
  EXPECT_EQ(Corrected("USB4_PCIe_Endpoint0_Vender_ID2", "USB4_PCIe_Endpoint#_Vendor_ID#"),
            "USB4_PCIe_Endpoint0_Vendor_ID2");
}

TEST(Spelling, AnyOtherDigitMakesAnotherName) {
  EXPECT_EQ(Corrected("USB4_CL0s_State_Supported", "USB4_CL1_State_Supported"), "-");
  EXPECT_EQ(Corrected("USB5_Dock", "USB4_Dock"), "-");
  EXPECT_EQ(Corrected("Num_Src_PDOs1", "Num_Src_PDOs"), "-");
  EXPECT_EQ(Corrected("Active_Cable_USB_Gen4", "Active_Cable_USB_Gen"), "-");
  EXPECT_EQ(Corrected("USB4_Lane_1_Adapter", "USB4_Lane_0_Adapter"), "-");
}

TEST(Spelling, AnotherAbbreviationMakesAnotherName) {
  EXPECT_EQ(Corrected("SPR_Supported_As_Src", "EPR_Supported_As_Src"), "-");
  EXPECT_EQ(Corrected("SOP_PPP_Capable", "SOP_PP_Capable"), "-");
  EXPECT_EQ(Corrected("VID", "PID"), "-");
  EXPECT_EQ(Corrected("Snk_PDO_Voltage", "Src_PDO_Voltage#"), "-");
}

TEST(Spelling, AWordMoreOrLessMakesAnotherName) {
  EXPECT_EQ(Corrected("PD_Power_As_Source_Max", "PD_Power_As_Source"), "-");
  EXPECT_EQ(Corrected("PD_Power_Source", "PD_Power_As_Source"), "-");
}

/// A name as a text file writes it, with numbers where the spelling has indexes.
std::string WithIndexes(std::string_view spelling) {
  std::string name;
  for (const char c : spelling) name += c == vifanalysis::kIndexMark ? '3' : c;
  return name;
}

/// The fields of the definition table.
std::span<const vifanalysis::FieldInfo> DefinedFields() { return vifanalysis::Fields().first(271); }

// What a later edition may add is no further from the names of today than these are from each other.
TEST(Spelling, NoDefinedNameIsAMisspellingOfAnother) {
  std::set<std::pair<std::string_view, std::string_view>> taken;
  for (const vifanalysis::FieldInfo& one : DefinedFields()) {
    const std::string name = WithIndexes(one.spelling);
    for (const vifanalysis::FieldInfo& other : DefinedFields()) {
      if (&one != &other && Respell(name, other.spelling)) taken.emplace(one.spelling, other.spelling);
    }
  }
  // One of these is a misspelling that the format made a field.
  EXPECT_THAT(taken,
              UnorderedElementsAre(std::pair("Active_Cable_Optically_Isolated", "Active_Cable_Optically_Isololated"),
                                   std::pair("Active_Cable_Optically_Isololated", "Active_Cable_Optically_Isolated")));
}

TEST(Spelling, EveryDefinedNameIsItsOwn) {
  for (const vifanalysis::FieldInfo& field : DefinedFields()) {
    EXPECT_EQ(Corrected(WithIndexes(field.spelling), field.spelling), WithIndexes(field.spelling));
  }
}

}  // namespace

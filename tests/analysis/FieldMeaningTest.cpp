// What values stand for.
#include <analysis/FieldMeaning.h>

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace vifanalysis {
namespace {

CVIFField NumericField(const std::string& name, const std::string& value) {
  std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH> nowhere;
  nowhere.fill(CVIFField::UNSPECIFIED_INDEX);
  return {true, name, value, std::string(), nowhere};
}

std::string Meaning(const std::string& name, const std::string& value, const PdoContext& context = {}) {
  return MeaningOf(NumericField(name, value), context).text;
}

TEST(FieldMeaning, IsTheTextOfAValue) {
  EXPECT_EQ(Meaning("PD_Port_Type", "3"), "Provider Only");
  EXPECT_EQ(Meaning("Captive_Cable", "1"), "YES");
  EXPECT_EQ(Meaning("Has_Invariant_PDOs", "0"), "NO");
}

TEST(FieldMeaning, IsTheTextOfTheEdition) {
  PdoContext context;
  context.edition = {1, 40};
  EXPECT_EQ(Meaning("VIF_Product_Type", "2", context), "Re-timer");
  EXPECT_EQ(Meaning("VIF_Product_Type", "2"), "Repeater");
}

TEST(FieldMeaning, IsTheAmountOfANumber) {
  EXPECT_EQ(Meaning("PD_Power_As_Source", "65000"), "65 W");
  PdoContext fixed;
  fixed.supplyType = 0;
  EXPECT_EQ(Meaning("Src_PDO_Voltage", "180", fixed), "9 V");
  EXPECT_EQ(Meaning("Src_PDO_Max_Current", "300"), "");
}

TEST(FieldMeaning, IsThatOfTheFieldThatAnotherSpellingMeans) {
  EXPECT_EQ(Meaning("PD_Power_as_Sink", "1000"), "1 W");
  EXPECT_EQ(Meaning("Type_C_Source_Vconn", "1"), "YES");
}

// Its numbers may stand for other things than those of the field that replaced it.
TEST(FieldMeaning, IsNotThatOfTheFieldThatReplacedAnOlderOne) { EXPECT_EQ(Meaning("Product_Type_SOP", "2"), ""); }

TEST(FieldMeaning, IsNothingWhereTheNumberSaysItAll) {
  EXPECT_EQ(Meaning("Num_Src_PDOs", "3"), "");
  EXPECT_EQ(Meaning("USB_VID_SOP", "0x18D1"), "");
}

TEST(FieldMeaning, IsNothingForWhatIsNotKnown) {
  EXPECT_EQ(Meaning("PD_Port_Type", "77"), "");
  EXPECT_EQ(Meaning("My_Own", "1"), "");
  EXPECT_EQ(Meaning("PD_Port_Type", "99999999999999999999"), "");
  EXPECT_EQ(Meaning("", ""), "");
}

TEST(FieldMeaning, IsUncertainWhereItHasLowConfidence) {
  EXPECT_TRUE(MeaningOf(NumericField("Product_Type_DFP_SOP", "3")).isUncertain);
  EXPECT_FALSE(MeaningOf(NumericField("PD_Port_Type", "3")).isUncertain);
}

}  // namespace
}  // namespace vifanalysis

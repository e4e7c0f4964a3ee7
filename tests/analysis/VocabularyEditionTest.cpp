// Which editions have which fields.
#include <analysis/Vocabulary.h>
#include <gtest/gtest.h>

#include <string_view>

using namespace vifanalysis;

namespace {

EditionFit FieldFit(std::string_view name, const Edition& edition) {
  return FitsEdition(*FindField(name).field, edition);
}

EditionFit NameFit(std::string_view name, const Edition& edition) { return FitsEdition(FindField(name), edition); }

}  // namespace

TEST(VocabularyEdition, KnowsAFieldFromItsFirstFileOn) {
  EXPECT_EQ(FieldFit("Has_Invariant_PDOs", {3, 19}), EditionFit::TooEarly);
  EXPECT_EQ(FieldFit("Has_Invariant_PDOs", {3, 22}), EditionFit::Known);
  EXPECT_EQ(FieldFit("Has_Invariant_PDOs", {3, 99}), EditionFit::Known);
}

TEST(VocabularyEdition, KnowsAFieldFromTheFirstListOn) {
  // Seen in files from edition 3.32 on, but listed for 3.12 already.
  EXPECT_EQ(FieldFit("USB4_Max_Speed", {3, 11}), EditionFit::TooEarly);
  EXPECT_EQ(FieldFit("USB4_Max_Speed", {3, 12}), EditionFit::Known);
  // Not seen, and listed for 3.18 only.
  EXPECT_EQ(FieldFit("EPR_Mode_Capable", {3, 17}), EditionFit::TooEarly);
  EXPECT_EQ(FieldFit("EPR_Mode_Capable", {3, 18}), EditionFit::Known);
}

TEST(VocabularyEdition, TakesTheEarlierOfFileAndList) {
  EXPECT_EQ(FindField("Captive_Cable_Is_eMarked").field->FirstKnown(), (Edition{3, 17}));
  EXPECT_EQ(FindField("TID").field->FirstKnown(), (Edition{2, 4}));
  EXPECT_EQ(FindField("Device_Max_USB2_Speed").field->FirstKnown(), (Edition{3, 32}));
  EXPECT_EQ(FindField("Retimer_Type").field->FirstKnown(), Edition{});
}

TEST(VocabularyEdition, KnowsWhenAFieldIsGone) {
  EXPECT_EQ(FieldFit("Product_VID", {3, 12}), EditionFit::Known);
  EXPECT_EQ(FieldFit("Product_VID", {3, 18}), EditionFit::Gone);
  EXPECT_EQ(FieldFit("Structured_VDM_Version_SOP", {1, 22}), EditionFit::Known);
  EXPECT_EQ(FieldFit("Structured_VDM_Version_SOP", {1, 36}), EditionFit::Gone);
}

TEST(VocabularyEdition, IsUnknownWithoutEditionOrEvidence) {
  EXPECT_EQ(FieldFit("TID", {}), EditionFit::Unknown);
  EXPECT_EQ(NameFit("Rp_Value", {}), EditionFit::Unknown);
  EXPECT_EQ(FieldFit("Retimer_Type", {2, 0}), EditionFit::Unknown);
  EXPECT_EQ(FieldFit("Retimer_Type", {3, 10}), EditionFit::Gone);
}

TEST(VocabularyEdition, KnowsWhenANameWasInUse) {
  EXPECT_EQ(NameFit("Rp_Value", {1, 0}), EditionFit::TooEarly);
  EXPECT_EQ(NameFit("Rp_Value", {1, 40}), EditionFit::Known);
  EXPECT_EQ(NameFit("Rp_Value", {2, 1}), EditionFit::Gone);
  EXPECT_EQ(NameFit("Externally_Powered", {1, 22}), EditionFit::Gone);
  EXPECT_EQ(NameFit("RP_Value", {3, 22}), EditionFit::Known);
  EXPECT_EQ(NameFit("AMA_VCONN_power", {1, 32}), EditionFit::Unknown);
}

TEST(VocabularyEdition, LetsTextFilesOfAllEditionsHaveTheDollarSign) {
  EXPECT_EQ(NameFit("$Vendor_Name", {1, 0}), EditionFit::TooEarly);
  EXPECT_EQ(NameFit("$Vendor_Name", {1, 11}), EditionFit::Known);
  EXPECT_EQ(NameFit("$Vendor_Name", {3, 26}), EditionFit::Known);
  EXPECT_EQ(NameFit("$Port_Source_Power_Gang", {3, 26}), EditionFit::Known);
}

TEST(VocabularyEdition, HasNoMistakesAndNoOtherLetterCase) {
  EXPECT_EQ(NameFit("Type_C_Source_Vconn", {1, 22}), EditionFit::Unknown);
  EXPECT_EQ(NameFit("rp_value", {3, 22}), EditionFit::Unknown);
  EXPECT_EQ(NameFit("Nonsense", {3, 22}), EditionFit::Unknown);
}

// Everything known about a field.
#include <analysis/FieldExplanation.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

using namespace vifanalysis;

TEST(VocabularyExplanation, SaysWhatAFieldIs) {
  const auto explanation = ExplainField("pd_port_type");
  ASSERT_TRUE(explanation);
  EXPECT_EQ(explanation->asked, NameKind::LetterCase);
  EXPECT_EQ(explanation->name, "PD_Port_Type");
  EXPECT_EQ(explanation->group, "Component");
  EXPECT_THAT(explanation->declares, testing::HasSubstr("Power roles"));
  EXPECT_EQ(explanation->type, "enumeration");
  EXPECT_EQ(explanation->unit, "");
  EXPECT_EQ(explanation->firstEdition, "1.36");
  EXPECT_EQ(explanation->lastEdition, "3.36");
  EXPECT_TRUE(explanation->seen);
  EXPECT_EQ(explanation->confidence, Confidence::High);
  EXPECT_EQ(explanation->sources.size(), 3U);
}

TEST(VocabularyExplanation, HasValuesWithTheirMarks) {
  const auto explanation = ExplainField("PD_Port_Type");
  ASSERT_TRUE(explanation);
  ASSERT_EQ(explanation->values.size(), 6U);
  EXPECT_EQ(explanation->values[4].value, "4");
  EXPECT_EQ(explanation->values[4].text, "DRP");
  EXPECT_TRUE(explanation->values[4].seen);
  EXPECT_EQ(explanation->values[5].text, "eMarker");
  EXPECT_FALSE(explanation->values[5].seen);
}

TEST(VocabularyExplanation, HasSpellingsWithTheirEditions) {
  const auto explanation = ExplainField("RP_Value");
  ASSERT_TRUE(explanation);
  ASSERT_EQ(explanation->spellings.size(), 1U);
  EXPECT_EQ(explanation->spellings[0].name, "Rp_Value");
  EXPECT_EQ(explanation->spellings[0].kind, NameKind::OtherSpelling);
  EXPECT_EQ(explanation->spellings[0].first, "1.11");
  EXPECT_EQ(explanation->spellings[0].last, "1.40");
}

TEST(VocabularyExplanation, SaysWhichUnitsTheNumberIsIn) {
  const auto unitOf = [](const char* name) { return ExplainField(name)->unit; };
  EXPECT_EQ(unitOf("Src_PDO_Voltage3"), "50 mV (fixed)");
  EXPECT_EQ(unitOf("Src_PDO_Max_Current"), "10 mA (fixed, variable); 50 mA (PPS)");
  EXPECT_EQ(unitOf("Snk_PDO_Min_Voltage"), "50 mV (battery, variable); 100 mV (augmented)");
  EXPECT_EQ(unitOf("Src_PD_OCP_UV_Threshold"), "10 mV (threshold as value); % (threshold as percentage)");
  EXPECT_EQ(unitOf("PD_Power_As_Sink"), "mW");
  EXPECT_EQ(unitOf("Num_Src_PDOs"), "");
  EXPECT_TRUE(ExplainField("VPD_VBUS_Impedance")->unitIsWeak);
  EXPECT_FALSE(ExplainField("PD_Power_As_Sink")->unitIsWeak);
}

TEST(VocabularyExplanation, SaysOfAnOlderNameWhatItIsNow) {
  const auto explanation = ExplainField("Product_Type_SOP");
  ASSERT_TRUE(explanation);
  EXPECT_EQ(explanation->asked, NameKind::OlderField);
  EXPECT_EQ(explanation->name, "Product_Type_UFP_SOP");
  EXPECT_EQ(explanation->alsoMeans, "Product_Type_DFP_SOP");
}

TEST(VocabularyExplanation, LeavesOutWhatIsNotKnown) {
  const auto explanation = ExplainField("Retimer_Type");
  ASSERT_TRUE(explanation);
  EXPECT_EQ(explanation->type, "unknown");
  EXPECT_EQ(explanation->firstEdition, "");
  EXPECT_FALSE(explanation->seen);
  EXPECT_EQ(explanation->note, "Out of use since edition 3.10.");
  EXPECT_EQ(explanation->confidence, Confidence::Low);
  EXPECT_EQ(ExplainField("OptionalContent")->group, "");
}

TEST(VocabularyExplanation, ExplainsEveryNameOfTheVocabulary) {
  for (const FieldInfo& field : Fields()) {
    const auto explanation = ExplainField(field.name);
    ASSERT_TRUE(explanation) << field.name;
    EXPECT_EQ(explanation->name, field.name);
    EXPECT_FALSE(explanation->sources.empty()) << field.name;
  }
  for (const FieldSpelling& row : Spellings()) {
    std::string name(row.spelling);
    std::erase(name, '#');
    EXPECT_TRUE(ExplainField(name)) << name;
  }
}

TEST(VocabularyExplanation, IsNoneForOtherNames) {
  EXPECT_FALSE(ExplainField("Nonsense"));
  EXPECT_FALSE(ExplainField(""));
}

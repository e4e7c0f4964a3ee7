// The texts of values, and the units of numbers.
#include <analysis/Vocabulary.h>
#include <gtest/gtest.h>

#include <limits>
#include <string>
#include <string_view>

using namespace vifanalysis;

namespace {

constexpr PdoContext kFixed{0, {}, {}, {3, 22}};
constexpr PdoContext kBattery{1, {}, {}, {3, 22}};
constexpr PdoContext kVariable{2, {}, {}, {3, 22}};
constexpr PdoContext kPps{3, 0, {}, {3, 22}};
constexpr PdoContext kEprAvs{3, 1, {}, {3, 22}};

std::string TextOf(std::string_view field, std::uint64_t number, const PdoContext& context = {}) {
  const auto quantity = QuantityOf(*FindField(field).field, number, context);
  return quantity ? QuantityText(*quantity) : "none";
}

std::string_view Value(std::string_view field, std::uint64_t value, const Edition& edition = {}) {
  return ValueText(*FindField(field).field, value, edition);
}

}  // namespace

TEST(VocabularyValue, HasTheTextOfAnEnumeration) {
  EXPECT_EQ(Value("PD_Port_Type", 4), "DRP");
  EXPECT_EQ(Value("Cable_Latency", 1), "<10 ns (~1 m)");
  EXPECT_EQ(Value("PD_Port_Type", 6), "");
}

TEST(VocabularyValue, HasNoAndYesForABoolean) {
  EXPECT_EQ(Value("USB_PD_Support", 0), "NO");
  EXPECT_EQ(Value("USB_PD_Support", 1), "YES");
  EXPECT_EQ(Value("USB_PD_Support", 2), "");
}

TEST(VocabularyValue, HasTheTextOfTheEdition) {
  EXPECT_EQ(Value("Src_PDO_Supply_Type", 3), "Augmented");
  EXPECT_EQ(Value("Src_PDO_Supply_Type", 3, {3, 12}), "PPS");
  EXPECT_EQ(Value("Src_PDO_Supply_Type", 3, {3, 13}), "Augmented");
  EXPECT_EQ(Value("Type_C_Power_Source", 0, {1, 36}), "Self-Powered");
  EXPECT_EQ(Value("Type_C_Power_Source", 0, {1, 40}), "Externally Powered");
}

TEST(VocabularyValue, HasNoneForNumbersAndTexts) {
  EXPECT_EQ(Value("Num_Src_PDOs", 1), "");
  EXPECT_EQ(Value("TID", 1), "");
}

TEST(VocabularyValue, SaysWhetherItWasSeen) {
  EXPECT_EQ(FindValue(*FindField("PD_Port_Type").field, 5)->files, 0U);
  EXPECT_GT(FindValue(*FindField("PD_Port_Type").field, 4)->files, 0U);
  EXPECT_EQ(FindValue(*FindField("Captive_Cable_Is_eMarked").field, 1)->files, 0U);
}

TEST(VocabularyQuantity, OfAFixedPdo) {
  EXPECT_EQ(TextOf("Src_PDO_Voltage", 180, kFixed), "9 V");
  EXPECT_EQ(TextOf("Src_PDO_Max_Current", 225, kFixed), "2.25 A");
  EXPECT_EQ(TextOf("Snk_PDO_Op_Current", 50, kFixed), "0.5 A");
}

TEST(VocabularyQuantity, OfABatteryPdo) {
  EXPECT_EQ(TextOf("Snk_PDO_Min_Voltage", 95, kBattery), "4.75 V");
  EXPECT_EQ(TextOf("Snk_PDO_Op_Power", 250, kBattery), "62.5 W");
  EXPECT_EQ(TextOf("Snk_PDO_Op_Current", 250, kBattery), "none");
}

TEST(VocabularyQuantity, OfAVariablePdo) {
  EXPECT_EQ(TextOf("Src_PDO_Max_Voltage", 400, kVariable), "20 V");
  EXPECT_EQ(TextOf("Src_PDO_Max_Current", 300, kVariable), "3 A");
}

TEST(VocabularyQuantity, OfAnAugmentedPdo) {
  EXPECT_EQ(TextOf("Src_PDO_Min_Voltage", 33, kPps), "3.3 V");
  EXPECT_EQ(TextOf("Src_PDO_Max_Current", 60, kPps), "3 A");
  EXPECT_EQ(TextOf("Src_PDO_Max_Voltage", 280, kEprAvs), "28 V");
  EXPECT_EQ(TextOf("Src_PDO_PDP_Rating", 140, kEprAvs), "140 W");
  EXPECT_EQ(TextOf("Src_PDO_Max_Current", 60, kEprAvs), "none");
  EXPECT_EQ(TextOf("Src_PDO_PDP_Rating", 140, kPps), "none");
}

TEST(VocabularyQuantity, TakesSupplyType3ForPpsUpToEdition3_12Only) {
  EXPECT_EQ(TextOf("Src_PDO_Max_Current", 60, {3, {}, {}, {3, 12}}), "3 A");
  EXPECT_EQ(TextOf("Src_PDO_Max_Current", 60, {3, {}, {}, {3, 13}}), "none");
  EXPECT_EQ(TextOf("Src_PDO_Max_Current", 60, {3, {}, {}, {}}), "none");
  EXPECT_EQ(TextOf("Src_PDO_Max_Voltage", 110, {3, {}, {}, {3, 13}}), "11 V");
}

TEST(VocabularyQuantity, NeedsTheSupplyTypeOnlyWhereItMatters) {
  EXPECT_EQ(TextOf("Src_PDO_Voltage", 100), "5 V");
  EXPECT_EQ(TextOf("Snk_PDO_Op_Power", 60), "15 W");
  EXPECT_EQ(TextOf("Src_PDO_Max_Current", 300), "none");
  EXPECT_EQ(TextOf("Src_PDO_PDP_Rating", 140), "none");
  EXPECT_EQ(TextOf("Src_PDO_Voltage", 100, {3, 0, {}, {}}), "none");
  EXPECT_EQ(TextOf("Src_PDO_Voltage", 100, {std::numeric_limits<std::uint64_t>::max(), {}, {}, {}}), "none");
}

TEST(VocabularyQuantity, OfAnUnderVoltageThreshold) {
  EXPECT_EQ(TextOf("Src_PD_OCP_UV_Threshold", 450, {0, {}, 0, {3, 32}}), "4.5 V");
  EXPECT_EQ(TextOf("Src_PD_OCP_UV_Threshold", 90, {0, {}, 1, {3, 32}}), "90 %");
  EXPECT_EQ(TextOf("Src_PD_OCP_UV_Threshold", 90), "none");
}

TEST(VocabularyQuantity, OfFieldsWithoutCondition) {
  EXPECT_EQ(TextOf("PD_Power_As_Sink", 62500), "62.5 W");
  EXPECT_EQ(TextOf("Src_PD_OCP_OC_Debounce", 10), "10 ms");
  EXPECT_EQ(TextOf("Src_PD_OCP_OC_Threshold", 330), "3.3 A");
  EXPECT_EQ(TextOf("VPD_VBUS_Impedance", 20), "40 mOhm");
  EXPECT_EQ(TextOf("Active_Cable_Shutdown_Temp", 85), "85 °C");
  EXPECT_EQ(TextOf("Num_Src_PDOs", 3), "3");
  EXPECT_EQ(TextOf("USB_VID_SOP", 0x18D1), "0x18D1");
  EXPECT_EQ(TextOf("USB_VID_SOP", 0x1), "0x0001");
  EXPECT_EQ(TextOf("USB_VID_SOP", 0x12345), "0x12345");
  EXPECT_EQ(TextOf("XID_SOP", 1234), "1234");
  EXPECT_EQ(TextOf("SVID1_Mode1_Recog_Mask_SOP", 0x405), "0x00000405");
}

TEST(VocabularyQuantity, IsExactToTheLastDigit) {
  EXPECT_EQ(TextOf("PD_Power_As_Sink", 0), "0 W");
  EXPECT_EQ(TextOf("PD_Power_As_Sink", 1), "0.001 W");
  EXPECT_EQ(TextOf("PD_Power_As_Sink", 1050), "1.05 W");
  EXPECT_EQ(TextOf("PD_Power_As_Sink", std::numeric_limits<std::uint64_t>::max()), "18446744073709551.615 W");
}

TEST(VocabularyQuantity, IsNoneWhereItHasMoreThan64Bits) {
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint64_t>::max();
  EXPECT_NE(TextOf("Src_PDO_Voltage", kMost / 50, kFixed), "none");
  EXPECT_EQ(TextOf("Src_PDO_Voltage", kMost / 50 + 1, kFixed), "none");
  EXPECT_EQ(TextOf("Src_PDO_PDP_Rating", kMost / 1000 + 1, kEprAvs), "none");
}

TEST(VocabularyQuantity, IsNoneWithoutAKnownUnit) {
  EXPECT_EQ(TextOf("Host_Gen1x1_tLinkTurnaround", 1), "none");
  EXPECT_EQ(TextOf("PD_Port_Type", 1), "none");
  EXPECT_EQ(TextOf("TID", 1), "none");
}

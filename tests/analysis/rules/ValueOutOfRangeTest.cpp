#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "value-out-of-range";

TEST(ValueOutOfRangeTest, FindsAnEnumerationBeyondItsLastValue) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "BC_1_2_Support", "4");
  EXPECT_THAT(
      charger.FindingsOf(kCode),
      Are({{kCode, "BC_1_2_Support", "Component 1: 'BC_1_2_Support' is 4, but there are only the values 0 to 3"}}));
  charger.Set(Component(1), "BC_1_2_Support", "3").Set(Component(1), "BC_1_2_Charging_Port_Type", "1");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
}

TEST(ValueOutOfRangeTest, FindsABooleanBeyond1) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Captive_Cable", "2");
  EXPECT_THAT(
      charger.FindingsOf(kCode),
      Are({{kCode, "Captive_Cable", "Component 1: 'Captive_Cable' is 2, but there are only the values 0 to 1"}}));
}

TEST(ValueOutOfRangeTest, FindsAnEnumerationOfAPdoAndOfTheFile) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 2), "Src_PDO_Supply_Type", "4").Set(Header(), "VIF_Product_Type", "3");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "Src_PDO_Supply_Type",
                    "Component 1, Source PDO 2: 'Src_PDO_Supply_Type' is 4, but there are only the values 0 to 3"},
                   {kCode, "VIF_Product_Type", "'VIF_Product_Type' is 3, but there are only the values 0 to 2"}}));
}

TEST(ValueOutOfRangeTest, FindsAnIdentifierOfMoreThan16Bits) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "PID_SOP", "0x10000");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "PID_SOP", "Component 1: 'PID_SOP' is 0x10000, but has only 16 bits: at most 0xFFFF"}}));
  charger.Set(Component(1), "PID_SOP", "0xFFFF");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
}

TEST(ValueOutOfRangeTest, FindsIdentifiersOfCablesAndModes) {
  CExample cable("active-cable.txt");
  cable.Set(Component(1), "bcdDevice", "65536").Set(CableSvid(1, 1), "SVID", "0x1FF01");
  EXPECT_THAT(
      cable.FindingsOf(kCode),
      Are({{kCode, "bcdDevice", "Component 1: 'bcdDevice' is 0x10000, but has only 16 bits: at most 0xFFFF"},
           {kCode, "SVID", "Component 1, Cable SVID 1: 'SVID' is 0x1FF01, but has only 16 bits: at most 0xFFFF"}}));
}

TEST(ValueOutOfRangeTest, FindsAnXidOrAMaskOfMoreThan32Bits) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "XID_SOP", "4294967296");
  tablet.Set(SopSvidMode(1, 2, 2), "SVID_Mode_Recog_Mask_SOP", "0xFFFFFFFFFFFFFFFE");
  EXPECT_THAT(
      tablet.FindingsOf(kCode),
      Are({{kCode, "XID_SOP", "Component 1: 'XID_SOP' is 0x100000000, but has only 32 bits: at most 0xFFFFFFFF"},
           {kCode, "SVID_Mode_Recog_Mask_SOP",
            "Component 1, SOP SVID 2, Mode 2: 'SVID_Mode_Recog_Mask_SOP' is 0xFFFFFFFFFFFFFFFE, but has only "
            "32 bits: at most 0xFFFFFFFF"}}));
}

TEST(ValueOutOfRangeTest, FindsAQuantityOfAPdoOfMoreThan10Bits) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 4), "Src_PDO_Voltage", "20000");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "Src_PDO_Voltage",
                    "Component 1, Source PDO 4: 'Src_PDO_Voltage' is 20000, but has only 10 bits: at most 1023"}}));
  charger.Set(SrcPdo(1, 4), "Src_PDO_Voltage", "1023");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
}

TEST(ValueOutOfRangeTest, AllowsValuesWhereTheLastIsNotCertain) {
  CExample cable("active-cable.txt");
  cable.Set(Component(1), "SBU_Type", "2").Set(Component(1), "Cable_VBUS_Current", "3");
  EXPECT_THAT(cable.FindingsOf(kCode), Are({}));
}

TEST(ValueOutOfRangeTest, AllowsSpeedsThatAreNotKnownYet) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Host_Speed", "9").Set(Component(1), "Power_Interruption_Available", "9");
  EXPECT_THAT(tablet.FindingsOf(kCode), Are({}));
}

TEST(ValueOutOfRangeTest, IsSilentAboutWhatIsUnansweredOrHasAnotherText) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "Captive_Cable", "4", "<select>");
  laptop.Set(Component(2), "BC_1_2_Support", "8", "Both");
  EXPECT_THAT(laptop.FindingsOf(kCode), Are({}));
  EXPECT_EQ(laptop.FindingsOf("unanswered").size(), 1U);
  EXPECT_EQ(laptop.FindingsOf("text-against-value").size(), 1U);
}

}  // namespace
}  // namespace vifanalysis

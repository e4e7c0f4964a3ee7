#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(PdoFieldsForTypeTest, FindsAMissingType) {
  CExample laptop("two-port-laptop.xml");
  laptop.Remove(SnkPdo(1, 2), "Snk_PDO_Supply_Type");
  EXPECT_THAT(
      laptop.Findings(),
      Are({{"pdo-fields-for-type", "Snk_PDO_Voltage", "Component 1, Sink PDO 2: Snk_PDO_Supply_Type is missing"}}));
}

TEST(PdoFieldsForTypeTest, FindsWhatAFixedPdoLacks) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(SrcPdo(1, 3), "Src_PDO_Voltage");
  EXPECT_THAT(charger.Findings(), Are({{"pdo-fields-for-type", "Src_PDO_Supply_Type",
                                        "Component 1, Source PDO 3: a fixed PDO needs Src_PDO_Voltage"}}));
}

TEST(PdoFieldsForTypeTest, FindsAMissingCurrent) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(SrcPdo(1, 6), "Src_PDO_Max_Current");
  EXPECT_THAT(charger.Findings(), Are({{"pdo-fields-for-type", "Src_PDO_Supply_Type",
                                        "Component 1, Source PDO 6: a programmable PDO needs Src_PDO_Max_Current"}}));
}

TEST(PdoFieldsForTypeTest, FindsWhatAFixedPdoDoesNotHave) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(SrcPdo(1, 3), "Src_PDO_Max_Voltage", "300");
  EXPECT_THAT(charger.Findings(), Are({{"pdo-fields-for-type", "Src_PDO_Max_Voltage",
                                        "Component 1, Source PDO 3: a fixed PDO has no Src_PDO_Max_Voltage"}}));
}

TEST(PdoFieldsForTypeTest, FindsWhatABatteryLacks) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Remove(SnkPdo(1, 4), "Snk_PDO_Op_Power");
  EXPECT_THAT(tablet.Findings(), Are({{"pdo-fields-for-type", "Snk_PDO_Supply_Type",
                                       "Component 1, Sink PDO 4: a battery PDO needs Snk_PDO_Op_Power"}}));
}

TEST(PdoFieldsForTypeTest, FindsAPdoOfAnotherTypeOnce) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 4), "Src_PDO_Supply_Type", "2");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-fields-for-type", "Src_PDO_Supply_Type",
                    "Component 1, Source PDO 4: a variable PDO needs Src_PDO_Min_Voltage and Src_PDO_Max_Voltage, and "
                    "has no Src_PDO_Voltage"}}));
}

TEST(PdoFieldsForTypeTest, DoesNotAskAdjustableSupplies) {
  CExample charger("epr-charger-140w.txt");
  charger.Remove(SrcPdo(1, 7), "Src_PDO_Min_Voltage");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(PdoFieldsForTypeTest, AllowsAProgrammableSupplyWithoutItsAugmentedType) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(SrcPdo(1, 6), "Src_PDO_APDO_Type").SetEdition("3.10");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(PdoFieldsForTypeTest, IsTheOnlyFindingAboutAWrongType) {
  CExample dock("usb4-dock.xml");
  dock.Set(SrcPdo(1, 2), "Src_PDO_Supply_Type", "1", "Battery");  // or pdo-order
  EXPECT_THAT(dock.Findings(), Are({{"pdo-fields-for-type", "Src_PDO_Supply_Type",
                                     "Component 1, Source PDO 2: a battery PDO needs Src_PDO_Min_Voltage, "
                                     "Src_PDO_Max_Voltage and Src_PDO_Max_Power, and has no Src_PDO_Voltage and "
                                     "Src_PDO_Max_Current"}}));
}

}  // namespace
}  // namespace vifanalysis

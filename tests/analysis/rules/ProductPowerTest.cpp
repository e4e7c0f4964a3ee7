#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(ProductPowerTest, FindsAPortOfMorePowerThanTheProduct) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Product_Total_Source_Power_mW", "64999");
  EXPECT_THAT(charger.Findings(), Are({{"product-power", "PD_Power_As_Source",
                                        "Component 1: PD_Power_As_Source is 65 W, but the whole product has 64.999 W "
                                        "(Product_Total_Source_Power_mW)"}}));
}

TEST(ProductPowerTest, FindsAPortThatSharesPowerWithoutAGang) {
  CExample dock("usb4-dock.xml");
  dock.Remove(Component(2), "Port_Source_Power_Gang");
  EXPECT_THAT(dock.Findings(), Are({{"product-power", "Port_Source_Power_Type",
                                     "Component 2: Port_Source_Power_Type is 1 (Shared), but Port_Source_Power_Gang is "
                                     "missing"}}));
}

TEST(ProductPowerTest, FindsAPortThatSharesPowerOfAnUnknownAmount) {
  CExample dock("usb4-dock.xml");
  dock.Remove(Component(3), "Port_Source_Power_Gang_Max_Power");
  EXPECT_THAT(dock.Findings(), Are({{"product-power", "Port_Source_Power_Type",
                                     "Component 3: Port_Source_Power_Type is 1 (Shared), but "
                                     "Port_Source_Power_Gang_Max_Power is missing"}}));
}

TEST(ProductPowerTest, KnowsThatTheTextsOfTextFilesAreInNoComponent) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Port_Source_Power_Type", "1").AddText(Nowhere(), "$Port_Source_Power_Gang", "A");
  charger.Add(Component(1), "Port_Source_Power_Gang_Max_Power", "65000");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(ProductPowerTest, FindsAGangOfLessPowerThanAPort) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(2), "Port_Source_Power_Gang_Max_Power", "14000");
  dock.Set(Component(3), "Port_Source_Power_Gang_Max_Power", "14000");
  EXPECT_THAT(dock.Findings(),
              Are({{"product-power", "Port_Source_Power_Gang_Max_Power",
                    "Component 2: Port_Source_Power_Gang_Max_Power is 14 W, but this port of the gang alone has 15 W "
                    "(PD_Power_As_Source)"}}));
}

TEST(ProductPowerTest, FindsAGangOfMorePowerThanTheProductOnce) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(2), "Port_Source_Power_Gang_Max_Power", "118501");
  dock.Set(Component(3), "Port_Source_Power_Gang_Max_Power", "118501");
  EXPECT_THAT(dock.Findings(),
              Are({{"product-power", "Port_Source_Power_Gang_Max_Power",
                    "Component 2: Port_Source_Power_Gang_Max_Power is 118.501 W, but the whole product has 118.5 W "
                    "(Product_Total_Source_Power_mW)"}}));
}

TEST(ProductPowerTest, AllowsAGangWithAllOfThePower) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(2), "Port_Source_Power_Gang_Max_Power", "118500");
  dock.Set(Component(3), "Port_Source_Power_Gang_Max_Power", "118500");
  EXPECT_THAT(dock.Findings(), Are({}));
}

TEST(ProductPowerTest, FindsDifferentTotals) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(3), "Product_Total_Source_Power_mW", "60000");
  EXPECT_THAT(dock.Findings(),
              Are({{"product-power", "Product_Total_Source_Power_mW",
                    "Component 3: Product_Total_Source_Power_mW differs within the product: 118.5 W in Component 1, "
                    "60 W in Component 3"}}));
}

TEST(ProductPowerTest, FindsATotalThatIsTooSmallInOneComponentOnce) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "Product_Total_Source_Power_mW", "15000");
  EXPECT_THAT(dock.Findings(),
              Are({{"product-power", "Product_Total_Source_Power_mW",
                    "Component 2: Product_Total_Source_Power_mW differs within the product: 15 W in Component 1, "
                    "118.5 W in Component 2"}}));
}

TEST(ProductPowerTest, FindsDifferentPowersOfAGang) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(3), "Port_Source_Power_Gang_Max_Power", "7500");
  EXPECT_THAT(dock.Findings(),
              Are({{"product-power", "Port_Source_Power_Gang_Max_Power",
                    "Component 3: Port_Source_Power_Gang_Max_Power differs within the gang 'Downstream': 22.5 W in "
                    "Component 2, 7.5 W in Component 3"}}));
}

TEST(ProductPowerTest, DoesNotCompareGangs) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(3), "Port_Source_Power_Gang", "Front");
  dock.Set(Component(3), "Port_Source_Power_Gang_Max_Power", "7500");
  EXPECT_THAT(dock.Findings(), Are({}));
}

TEST(ProductPowerTest, IgnoresTheGangOfAssuredPower) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Port_Source_Power_Gang_Max_Power", "0");
  EXPECT_THAT(charger.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "product-power"))));
}

TEST(ProductPowerTest, IsForEditionsFrom2_0) {
  const auto isSilent = testing::Not(testing::Contains(testing::Field(&Finding::code, "product-power")));
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Product_Total_Source_Power_mW", "60000");
  EXPECT_THAT(charger.SetEdition("1.40").Findings(), isSilent);
  EXPECT_THAT(charger.SetEdition("2.0").Findings(), testing::Not(isSilent));
}

TEST(ProductPowerTest, NeedsATotal) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "Product_Total_Source_Power_mW");
  EXPECT_THAT(charger.Findings(), Are({}));
}

}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(RatingAbovePdosTest, FindsASourceOfMorePower) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "PD_Power_As_Source", "97000");
  EXPECT_THAT(dock.Findings(),
              Are({{"rating-above-pdos", "PD_Power_As_Source",
                    "Component 1: PD_Power_As_Source is 97 W, but no source PDO is of more than 96 W"}}));
}

TEST(RatingAbovePdosTest, FindsASinkOfMorePower) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "PD_Power_As_Sink", "65201");
  EXPECT_THAT(laptop.Findings(),
              Are({{"rating-above-pdos", "PD_Power_As_Sink",
                    "Component 2: PD_Power_As_Sink is 65.201 W, but no sink PDO is of more than 65 W"}}));
}

TEST(RatingAbovePdosTest, AllowsOneStepOfTheCurrent) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "PD_Power_As_Sink", "65200");
  EXPECT_THAT(laptop.Findings(), Are({}));
}

TEST(RatingAbovePdosTest, CountsTheLimitsOfAugmentedPdos) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Product_Total_Source_Power_mW", "70000");
  charger.Set(Component(1), "PD_Power_As_Source", "69300");  // 21 V, 3.25 A and one step of 50 mA
  EXPECT_THAT(charger.Findings(), Are({}));
  charger.Set(Component(1), "PD_Power_As_Source", "69301");
  EXPECT_THAT(charger.Findings(),
              Are({{"rating-above-pdos", "PD_Power_As_Source",
                    "Component 1: PD_Power_As_Source is 69.301 W, but no source PDO is of more than 68.25 W"}}));
}

TEST(RatingAbovePdosTest, CountsTheRatingOfAdjustableSupplies) {
  CExample charger("epr-charger-140w.txt");
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Current", "300");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(RatingAbovePdosTest, NeedsThePowerOfEachPdo) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "PD_Power_As_Sink", "70000").Add(SnkPdo(2, 5), "Snk_PDO_Supply_Type", "3");
  laptop.Add(SnkPdo(2, 5), "Snk_PDO_APDO_Type", "2");
  EXPECT_THAT(laptop.Findings(), Are({}));
}

TEST(RatingAbovePdosTest, NeedsAllPdos) {
  CExample laptop("two-port-laptop.xml");
  laptop.RemoveGroup(SrcPdo(1, 2));
  EXPECT_THAT(laptop.Findings(), Are({}));
  laptop.Set(Component(1), "Num_Src_PDOs", "1");
  EXPECT_THAT(laptop.Findings(),
              Are({{"rating-above-pdos", "PD_Power_As_Source",
                    "Component 1: PD_Power_As_Source is 18 W, but no source PDO is of more than 15 W"}}));
}

TEST(RatingAbovePdosTest, IsTheOnlyFindingAboutARatingThatIsTooGreat) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "PD_Power_As_Source", "192000");  // or epr-consistency, product-power
  EXPECT_THAT(dock.Findings(),
              Are({{"rating-above-pdos", "PD_Power_As_Source",
                    "Component 1: PD_Power_As_Source is 192 W, but no source PDO is of more than 96 W"}}));
  CExample gang("usb4-dock.xml");
  gang.Set(Component(2), "PD_Power_As_Source", "30000");
  EXPECT_THAT(gang.Findings(),
              Are({{"rating-above-pdos", "PD_Power_As_Source",
                    "Component 2: PD_Power_As_Source is 30 W, but no source PDO is of more than 15 W"}}));
}

}  // namespace
}  // namespace vifanalysis

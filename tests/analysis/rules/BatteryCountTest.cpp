#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(BatteryCountTest, FindsBatteriesOfAPortWithoutBatteryPower) {
  for (const std::string name : {"Num_Fixed_Batteries", "Num_Swappable_Battery_Slots"}) {
    CExample charger("gan-charger-65w.txt");
    charger.Set(Component(1), name, "1");
    EXPECT_THAT(charger.Findings(),
                Are({{"battery-count", name, "Component 1: Port_Battery_Powered is NO, but " + name + " is 1"}}));
  }
}

TEST(BatteryCountTest, FindsBatteryPowerWithoutABattery) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Num_Fixed_Batteries", "0");
  EXPECT_THAT(tablet.Findings(), Are({{"battery-count", "Port_Battery_Powered",
                                       "Component 1: Port_Battery_Powered is YES, but Num_Fixed_Batteries is 0 and "
                                       "Num_Swappable_Battery_Slots is 0"}}));
}

TEST(BatteryCountTest, AllowsFourOfEachKind) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Num_Fixed_Batteries", "4").Set(Component(1), "Num_Swappable_Battery_Slots", "4");
  EXPECT_THAT(tablet.Findings(), Are({}));
}

TEST(BatteryCountTest, FindsMoreThanFour) {
  for (const std::string name : {"Num_Fixed_Batteries", "Num_Swappable_Battery_Slots"}) {
    CExample tablet("dual-role-tablet.txt");
    tablet.Set(Component(1), name, "5");
    EXPECT_THAT(tablet.Findings(),
                Are({{"battery-count", name, "Component 1: " + name + " is 5, but there can be at most 4"}}));
  }
}

TEST(BatteryCountTest, IsSilentWhereAFieldIsMissing) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Num_Fixed_Batteries", "1").Remove(Component(1), "Port_Battery_Powered");
  EXPECT_THAT(charger.Findings(), Are({}));
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Num_Fixed_Batteries", "0").Remove(Component(1), "Num_Swappable_Battery_Slots");
  EXPECT_THAT(tablet.Findings(), Are({}));
}

TEST(BatteryCountTest, IsNotForOlderEditions) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("1.19").Set(Component(1), "Num_Fixed_Batteries", "1");
  EXPECT_THAT(charger.Findings(), Are({}));
}
TEST(BatteryCountTest, IsTheOnlyFindingAboutOneOfSeveralPorts) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(2), "Num_Fixed_Batteries", "1");  // or ports-disagree
  EXPECT_THAT(dock.Findings(), Are({{"battery-count", "Num_Fixed_Batteries",
                                     "Component 2: Port_Battery_Powered is NO, but Num_Fixed_Batteries is 1"}}));
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "Num_Fixed_Batteries", "0");
  EXPECT_THAT(laptop.Findings(), Are({{"battery-count", "Port_Battery_Powered",
                                       "Component 2: Port_Battery_Powered is YES, but Num_Fixed_Batteries is 0 and "
                                       "Num_Swappable_Battery_Slots is 0"}}));
}

}  // namespace
}  // namespace vifanalysis

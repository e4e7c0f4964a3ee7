#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(Bc12RoleTest, FindsASourceThatIsAPortableDevice) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "BC_1_2_Support", "3");
  EXPECT_THAT(charger.Findings(),
              Are({{"bc12-role", "BC_1_2_Support",
                    "Component 1: BC_1_2_Support is 3 (Both), but Type_C_State_Machine is 0 (SRC)"}}));
  charger.Set(Component(1), "BC_1_2_Support", "1").Remove(Component(1), "BC_1_2_Charging_Port_Type");
  EXPECT_THAT(charger.Findings(),
              Are({{"bc12-role", "BC_1_2_Support",
                    "Component 1: BC_1_2_Support is 1 (Portable Device), but Type_C_State_Machine is 0 (SRC)"}}));
}

TEST(Bc12RoleTest, FindsASinkThatIsAChargingPort) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "BC_1_2_Support", "2").Add(Component(1), "BC_1_2_Charging_Port_Type", "0");
  EXPECT_THAT(light.Findings(),
              Are({{"bc12-role", "BC_1_2_Support",
                    "Component 1: BC_1_2_Support is 2 (Charging Port), but Type_C_State_Machine is 1 (SNK)"}}));
  light.Set(Component(1), "BC_1_2_Support", "3");
  EXPECT_THAT(light.Findings(),
              Are({{"bc12-role", "BC_1_2_Support",
                    "Component 1: BC_1_2_Support is 3 (Both), but Type_C_State_Machine is 1 (SNK)"}}));
}

TEST(Bc12RoleTest, AllowsASinkThatIsAPortableDevice) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "BC_1_2_Support", "1");
  EXPECT_THAT(light.Findings(), Are({}));
}

TEST(Bc12RoleTest, FindsAChargingPortWithDataThatIsNotAHost) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "BC_1_2_Charging_Port_Type", "1");
  EXPECT_THAT(charger.Findings(), Are({{"bc12-role", "BC_1_2_Charging_Port_Type",
                                        "Component 1: BC_1_2_Charging_Port_Type is 1 (CDP), which carries USB data, "
                                        "but Type_C_Can_Act_As_Host is NO"}}));
}

TEST(Bc12RoleTest, AllowsAHostThatIsBoth) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "BC_1_2_Support", "3").Add(Component(1), "BC_1_2_Charging_Port_Type", "1");
  EXPECT_THAT(tablet.Findings(), Are({}));
}
}  // namespace
}  // namespace vifanalysis

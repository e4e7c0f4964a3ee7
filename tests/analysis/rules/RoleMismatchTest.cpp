#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "role-mismatch";

TEST(RoleMismatchTest, FindsAProviderThatStartsAsASink) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Type_C_State_Machine", "1");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "Type_C_State_Machine",
                    "Component 1: PD_Port_Type 3 (Provider Only) goes with Type_C_State_Machine 0 (SRC), but it is "
                    "1 (SNK)"}}));
}

TEST(RoleMismatchTest, FindsAConsumerThatIsADrp) {
  CExample iron("soldering-iron.txt");
  iron.Set(Component(1), "Type_C_State_Machine", "2");
  EXPECT_THAT(iron.FindingsOf(kCode),
              Are({{kCode, "Type_C_State_Machine",
                    "Component 1: PD_Port_Type 0 (Consumer Only) goes with Type_C_State_Machine 1 (SNK), but it is "
                    "2 (DRP)"}}));
}

TEST(RoleMismatchTest, FindsEveryOtherRoleOfADrpStateMachine) {
  for (const std::string role : {"0", "1", "2", "3"}) {
    CExample tablet("dual-role-tablet.txt");
    tablet.Set(Component(1), "PD_Port_Type", role);
    EXPECT_EQ(tablet.FindingsOf(kCode).size(), 1U) << role;
  }
}

TEST(RoleMismatchTest, AllowsTheDualPowerRolesOfOneStateMachine) {
  EXPECT_THAT(CExample("gan-charger-65w.txt").Set(Component(1), "PD_Port_Type", "2").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample("soldering-iron.txt").Set(Component(1), "PD_Port_Type", "1").FindingsOf(kCode), Are({}));
}

TEST(RoleMismatchTest, SaysANumberThatHasNoNameAlone) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Type_C_State_Machine", "18446744073709551614");
  EXPECT_THAT(tablet.FindingsOf(kCode),
              Are({{kCode, "Type_C_State_Machine",
                    "Component 1: PD_Port_Type 4 (DRP) goes with Type_C_State_Machine 2 (DRP), but it is "
                    "18446744073709551614"}}));
}

TEST(RoleMismatchTest, NeedsBothFieldsAndUsbPd) {
  CExample charger("gan-charger-65w.txt");
  EXPECT_THAT(CExample(charger).Remove(Component(1), "Type_C_State_Machine").FindingsOf(kCode), Are({}));
  charger.Set(Component(1), "Type_C_State_Machine", "1");
  EXPECT_THAT(CExample(charger).Remove(Component(1), "PD_Port_Type").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Set(Component(1), "USB_PD_Support", "NO").FindingsOf(kCode), Are({}));
}

}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "swap-against-role";

TEST(SwapAgainstRoleTest, FindsEverySwapOfAPortWithOnePowerRole) {
  for (const std::string name : {"Accepts_PR_Swap_As_Src", "Accepts_PR_Swap_As_Snk", "Requests_PR_Swap_As_Src",
                                 "Requests_PR_Swap_As_Snk", "FR_Swap_Supported_As_Initial_Sink"}) {
    CExample charger("gan-charger-65w.txt");
    charger.Add(Component(1), name, "YES");
    EXPECT_THAT(charger.FindingsOf(kCode),
                Are({{kCode, name,
                      "Component 1: a Provider Only port cannot change its power role, but " + name + " is YES"}}));
  }
}

TEST(SwapAgainstRoleTest, FindsASwapOfAConsumer) {
  CExample iron("soldering-iron.txt");
  iron.Add(Component(1), "Accepts_PR_Swap_As_Snk", "YES");
  EXPECT_THAT(iron.FindingsOf(kCode),
              Are({{kCode, "Accepts_PR_Swap_As_Snk",
                    "Component 1: a Consumer Only port cannot change its power role, but Accepts_PR_Swap_As_Snk is "
                    "YES"}}));
}

TEST(SwapAgainstRoleTest, FindsAPreferenceOfAPortThatIsNotADrp) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Type_C_Implements_Try_SRC", "YES");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "Type_C_Implements_Try_SRC",
                    "Component 1: Type_C_Implements_Try_SRC is YES, but Type_C_State_Machine 0 (SRC) is not DRP"}}));
  CExample iron("soldering-iron.txt");
  iron.Add(Component(1), "Type_C_Implements_Try_SNK", "YES");
  EXPECT_THAT(iron.FindingsOf(kCode),
              Are({{kCode, "Type_C_Implements_Try_SNK",
                    "Component 1: Type_C_Implements_Try_SNK is YES, but Type_C_State_Machine 1 (SNK) is not DRP"}}));
}

TEST(SwapAgainstRoleTest, LeavesAMismatchOfRolesToItsRule) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "PD_Port_Type", "3");
  EXPECT_EQ(tablet.FindingsOf("role-mismatch").size(), 1U);
  for (const char* code : {"swap-against-role", "role-incomplete", "role-leftover", "power-source-role"}) {
    EXPECT_THAT(tablet.FindingsOf(code), Are({})) << code;
  }
}

TEST(SwapAgainstRoleTest, FindsTwoPreferences) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Type_C_Implements_Try_SRC", "YES");
  EXPECT_THAT(tablet.FindingsOf(kCode),
              Are({{kCode, "Type_C_Implements_Try_SNK",
                    "Component 1: Type_C_Implements_Try_SRC and Type_C_Implements_Try_SNK are both YES, but a port can "
                    "prefer only one role"}}));
}

TEST(SwapAgainstRoleTest, AllowsNoAndPortsThatHaveBothRoles) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Accepts_PR_Swap_As_Src", "NO").Add(Component(1), "Type_C_Implements_Try_SRC", "NO");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
  charger.Set(Component(1), "Accepts_PR_Swap_As_Src", "YES").Set(Component(1), "PD_Port_Type", "2");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
}

TEST(SwapAgainstRoleTest, NeedsTheRoleAndTheStateMachine) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Accepts_PR_Swap_As_Src", "YES").Add(Component(1), "Type_C_Implements_Try_SRC", "YES");
  charger.Remove(Component(1), "PD_Port_Type").Remove(Component(1), "Type_C_State_Machine");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
}

TEST(SwapAgainstRoleTest, BlamesARoleThatSeveralSwapsContradict) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Accepts_PR_Swap_As_Src", "YES").Add(Component(1), "Requests_PR_Swap_As_Src", "YES");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "PD_Port_Type",
                    "Component 1: a Provider Only port cannot change its power role, but Accepts_PR_Swap_As_Src and "
                    "Requests_PR_Swap_As_Src are YES"}}));
}

TEST(SwapAgainstRoleTest, BlamesAStateMachineThatBothPreferencesContradict) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Type_C_Implements_Try_SRC", "YES").Add(Component(1), "Type_C_Implements_Try_SNK", "YES");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "Type_C_State_Machine",
                    "Component 1: Type_C_Implements_Try_SRC and Type_C_Implements_Try_SNK are YES, but "
                    "Type_C_State_Machine 0 (SRC) is not DRP"}}));
}

}  // namespace
}  // namespace vifanalysis

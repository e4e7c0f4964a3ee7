#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(RespondsInImpossibleRoleTest, FindsASourceThatRespondsAsUfp) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Responds_To_Discov_SOP_UFP", "YES");
  EXPECT_THAT(charger.Findings(),
              Are({{"responds-in-impossible-role", "Responds_To_Discov_SOP_UFP",
                    "Component 1: Responds_To_Discov_SOP_UFP is YES, but the port starts as a DFP and never becomes a "
                    "UFP: Type_C_State_Machine is 0 (SRC), DR_Swap_To_UFP_Supported is NO"}}));
}

TEST(RespondsInImpossibleRoleTest, FindsASinkThatRespondsAsDfp) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "Responds_To_Discov_SOP_DFP", "YES");
  EXPECT_THAT(light.Findings(),
              Are({{"responds-in-impossible-role", "Responds_To_Discov_SOP_DFP",
                    "Component 1: Responds_To_Discov_SOP_DFP is YES, but the port starts as a UFP and never becomes a "
                    "DFP: Type_C_State_Machine is 1 (SNK), DR_Swap_To_DFP_Supported is NO"}}));
}

TEST(RespondsInImpossibleRoleTest, LeavesASwapThatIsRequiredToItsRule) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Responds_To_Discov_SOP_UFP", "YES").Set(Component(1), "Type_C_Can_Act_As_Device", "YES");
  EXPECT_EQ(charger.FindingsOf("dr-swap-required").size(), 2U);
  EXPECT_THAT(charger.FindingsOf("responds-in-impossible-role"), Are({}));
}

TEST(RespondsInImpossibleRoleTest, AllowsARoleThatThePortSwapsTo) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Responds_To_Discov_SOP_UFP", "YES").Set(Component(1), "DR_Swap_To_UFP_Supported", "YES");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(RespondsInImpossibleRoleTest, IsSilentWhereTheSwapIsMissing) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Responds_To_Discov_SOP_UFP", "YES").Remove(Component(1), "DR_Swap_To_UFP_Supported");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(RespondsInImpossibleRoleTest, IsNotForOlderEditions) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("1.29").Set(Component(1), "Responds_To_Discov_SOP_UFP", "YES");
  EXPECT_THAT(charger.Findings(), Are({}));
}
}  // namespace
}  // namespace vifanalysis

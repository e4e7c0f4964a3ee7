#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(PowerSourceRoleTest, FindsAProviderThatIsPoweredOverItsPort) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Type_C_Power_Source", "1");
  EXPECT_THAT(charger.Findings(), Are({{"power-source-role", "Type_C_Power_Source",
                                        "Component 1: a Provider Only port is never powered over itself, but "
                                        "Type_C_Power_Source is 1 (UFP-powered)"}}));
  charger.Set(Component(1), "Type_C_Power_Source", "2");
  EXPECT_THAT(charger.Findings(), Are({{"power-source-role", "Type_C_Power_Source",
                                        "Component 1: a Provider Only port is never powered over itself, but "
                                        "Type_C_Power_Source is 2 (Both)"}}));
}

TEST(PowerSourceRoleTest, AllowsAProviderWithAnotherSource) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Type_C_Power_Source", "0");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(PowerSourceRoleTest, FindsUnconstrainedPowerOverThePortAlone) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "Unconstrained_Power", "YES");
  EXPECT_THAT(light.Findings(),
              Are({{"power-source-role", "Type_C_Power_Source",
                    "Component 1: Unconstrained_Power is YES, but Type_C_Power_Source is 1 (UFP-powered)"}}));
}

TEST(PowerSourceRoleTest, AllowsUnconstrainedPowerFromBothSources) {
  CExample light("desk-light.txt");
  light.Set(Component(1), "Unconstrained_Power", "YES").Set(Component(1), "Type_C_Power_Source", "2");
  EXPECT_THAT(light.Findings(), Are({}));
}

TEST(PowerSourceRoleTest, KnowsNoProviderWithoutPd) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Type_C_Power_Source", "2").Set(Component(1), "USB_PD_Support", "NO");
  EXPECT_THAT(charger.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "power-source-role"))));
}
}  // namespace
}  // namespace vifanalysis

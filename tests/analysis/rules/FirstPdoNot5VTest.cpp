#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(FirstPdoNot5VTest, FindsAnotherVoltage) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 1), "Src_PDO_Voltage", "120");
  EXPECT_THAT(charger.Findings(),
              Are({{"first-pdo-not-5v", "Src_PDO_Voltage",
                    "Component 1, Source PDO 1: the first source PDO must be fixed at 5 V (Src_PDO_Supply_Type 0, "
                    "Src_PDO_Voltage 100), but it has Src_PDO_Voltage 120 (6 V)"}}));
}

TEST(FirstPdoNot5VTest, FindsALowerVoltageOnce) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 1), "Src_PDO_Voltage", "99");
  EXPECT_THAT(charger.Findings(),
              Are({{"first-pdo-not-5v", "Src_PDO_Voltage",
                    "Component 1, Source PDO 1: the first source PDO must be fixed at 5 V (Src_PDO_Supply_Type 0, "
                    "Src_PDO_Voltage 100), but it has Src_PDO_Voltage 99 (4.95 V)"}}));
}

TEST(FirstPdoNot5VTest, FindsAnotherSupply) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(SnkPdo(2, 1), "Snk_PDO_Supply_Type", "2");
  EXPECT_THAT(laptop.Findings(),
              Are({{"first-pdo-not-5v", "Snk_PDO_Supply_Type",
                    "Component 2, Sink PDO 1: the first sink PDO must be fixed at 5 V (Snk_PDO_Supply_Type 0, "
                    "Snk_PDO_Voltage 100), but it has Snk_PDO_Supply_Type 2 (Variable)"}}));
}

TEST(FirstPdoNot5VTest, FindsAPdoOf5VThatIsMissing) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(SnkPdo(1, 1), "Snk_PDO_Voltage", "180");
  EXPECT_THAT(tablet.Findings(),
              Are({{"first-pdo-not-5v", "Snk_PDO_Voltage",
                    "Component 1, Sink PDO 1: the first sink PDO must be fixed at 5 V (Snk_PDO_Supply_Type 0, "
                    "Snk_PDO_Voltage 100), but it has Snk_PDO_Voltage 180 (9 V)"}}));
}

TEST(FirstPdoNot5VTest, DoesNotAskForAFirstPdoThatIsNotListed) {
  CExample charger("gan-charger-65w.txt");
  charger.RemoveGroup(SrcPdo(1, 1));
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(FirstPdoNot5VTest, LeavesAnUnansweredFieldToItsRule) {
  CExample charger("gan-charger-65w.xml");
  charger.Set(SrcPdo(1, 1), "Src_PDO_Voltage", "4", "<select>");
  EXPECT_THAT(charger.Findings(),
              Are({{"unanswered", "Src_PDO_Voltage",
                    "Component 1, Source PDO 1: 'Src_PDO_Voltage' is still the editor's \"<select>\""}}));
}

}  // namespace
}  // namespace vifanalysis

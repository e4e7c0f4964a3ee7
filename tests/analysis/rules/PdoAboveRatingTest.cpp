#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(PdoAboveRatingTest, FindsASourcePdoOfMorePower) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "330");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-above-rating", "Src_PDO_Max_Current",
                    "Component 1, Source PDO 4: the PDO is of 66 W, but PD_Power_As_Source is 65 W"}}));
}

TEST(PdoAboveRatingTest, AllowsOneStepOfTheCurrent) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "326");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(PdoAboveRatingTest, BlamesARatingThatMoreThanOnePdoExceeds) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "PD_Power_As_Source", "0");
  EXPECT_THAT(dock.Findings(), Are({{"pdo-above-rating", "PD_Power_As_Source",
                                     "Component 1: PD_Power_As_Source is 0 W, but 4 source PDOs are of more, up to 96 "
                                     "W"}}));
  dock.Set(Component(1), "PD_Power_As_Source", "45000");
  EXPECT_THAT(dock.Findings(), Are({{"pdo-above-rating", "Src_PDO_Max_Current",
                                     "Component 1, Source PDO 4: the PDO is of 96 W, but PD_Power_As_Source is 45 "
                                     "W"}}));
}

}  // namespace
}  // namespace vifanalysis

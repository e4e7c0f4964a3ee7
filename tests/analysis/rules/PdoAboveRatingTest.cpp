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

}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

CExample Charger(const char* threshold) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 2), "Src_PD_OCP_OC_Threshold", threshold);
  return charger;
}

TEST(OcpBelowRatingTest, FindsAThresholdBelowTheCurrent) {
  EXPECT_THAT(Charger("160").Findings(),
              Are({{"ocp-below-rating", "Src_PD_OCP_OC_Threshold",
                    "Component 1, Source PDO 2: over-current protection acts from 1.6 A (Src_PD_OCP_OC_Threshold 160), "
                    "below the 3 A that the PDO offers"}}));
  EXPECT_EQ(Charger("299").Findings().size(), 1U);
}

TEST(OcpBelowRatingTest, AllowsAThresholdThatEqualsTheCurrent) { EXPECT_THAT(Charger("300").Findings(), Are({})); }

TEST(OcpBelowRatingTest, KnowsTheUnitOfTheCurrentOfAugmentedPdos) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(SrcPdo(1, 5), "Src_PD_OCP_OC_Threshold", "300");
  EXPECT_THAT(charger.Findings(), Are({}));
  charger.Set(SrcPdo(1, 5), "Src_PD_OCP_OC_Threshold", "299");
  EXPECT_THAT(charger.Findings(),
              Are({{"ocp-below-rating", "Src_PD_OCP_OC_Threshold",
                    "Component 1, Source PDO 5: over-current protection acts from 2.99 A (Src_PD_OCP_OC_Threshold "
                    "299), below the 3 A that the PDO offers"}}));
}

TEST(OcpBelowRatingTest, IsForEditionsFrom1_34AndForProtectedSources) {
  const auto isSilent = testing::Not(testing::Contains(testing::Field(&Finding::code, "ocp-below-rating")));
  EXPECT_THAT(Charger("160").SetEdition("1.33").Findings(), isSilent);
  EXPECT_THAT(Charger("160").SetEdition("1.34").Findings(), testing::Not(isSilent));
  EXPECT_THAT(Charger("160").Set(Component(1), "PD_OC_Protection", "NO").Findings(), isSilent);
  EXPECT_THAT(Charger("160").Remove(Component(1), "PD_OC_Protection").Findings(), testing::Not(isSilent));
}

TEST(OcpBelowRatingTest, NeedsACurrent) {
  EXPECT_THAT(Charger("160").Remove(SrcPdo(1, 2), "Src_PDO_Max_Current").Findings(),
              testing::Not(testing::Contains(testing::Field(&Finding::code, "ocp-below-rating"))));
}

TEST(OcpBelowRatingTest, LeavesACurrentThatIsTooGreatToItsRule) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "500");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-above-rating", "Src_PDO_Max_Current",
                    "Component 1, Source PDO 4: the PDO is of 100 W, but PD_Power_As_Source is 65 W"}}));
}

}  // namespace
}  // namespace vifanalysis

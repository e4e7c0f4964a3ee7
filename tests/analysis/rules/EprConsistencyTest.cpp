#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(EprConsistencyTest, FindsEprWithoutAnEprPdo) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "EPR_Supported_As_Src", "YES");
  EXPECT_THAT(charger.Findings(),
              Are({{"epr-consistency", "EPR_Supported_As_Src",
                    "Component 1: EPR_Supported_As_Src is YES, but no source PDO is above 21 V or an EPR AVS"}}));
}

TEST(EprConsistencyTest, FindsEprOfASinkWithoutAnEprPdo) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(1), "EPR_Supported_As_Snk", "true");
  EXPECT_THAT(laptop.Findings(),
              Are({{"epr-consistency", "EPR_Supported_As_Snk",
                    "Component 1: EPR_Supported_As_Snk is YES, but no sink PDO is above 21 V or an EPR AVS"}}));
}

TEST(EprConsistencyTest, IsContentWithAnAdjustableSupplyOrAHighVoltage) {
  CExample adjustable("epr-charger-140w.txt");
  adjustable.RemoveGroup(SrcPdo(1, 6));
  EXPECT_THAT(adjustable.Findings(), Are({}));
  CExample fixed("epr-charger-140w.txt");
  fixed.RemoveGroup(SrcPdo(1, 7));
  EXPECT_THAT(fixed.Findings(), Are({}));
}

TEST(EprConsistencyTest, NeedsAllVoltages) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "EPR_Supported_As_Src", "YES").Remove(SrcPdo(1, 6), "Src_PDO_Max_Voltage");
  EXPECT_THAT(charger.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "epr-consistency"))));
}

/// A charger without EPR that has 21 V and 5 A.
CExample Charger(const char* rating) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Current", "100");
  charger.Set(Component(1), "Product_Total_Source_Power_mW", "105000");
  charger.Set(Component(1), "PD_Power_As_Source", rating);
  return charger;
}

TEST(EprConsistencyTest, FindsMoreThan100WWithoutEpr) {
  EXPECT_THAT(Charger("100000").Findings(), Are({}));
  EXPECT_THAT(Charger("105000").Findings(),
              Are({{"epr-consistency", "EPR_Supported_As_Src",
                    "Component 1: EPR_Supported_As_Src is NO, but PD_Power_As_Source is 105 W, more than 100 W"}}));
}

TEST(EprConsistencyTest, DoesNotAskForAnAnswerThatIsMissing) {
  EXPECT_THAT(Charger("105000").Remove(Component(1), "EPR_Supported_As_Src").Findings(), Are({}));
}

TEST(EprConsistencyTest, FindsARevisionBeforeEpr) {
  CExample charger("epr-charger-140w.txt");
  charger.Set(Component(1), "PD_Spec_Version_Minor", "2").Set(Component(1), "PD_Spec_Revision_Minor", "0");
  EXPECT_THAT(charger.Findings(), Are({{"epr-consistency", "PD_Spec_Revision_Minor",
                                        "Component 1: EPR came with PD revision 3.1, but PD_Spec_Revision is 3.0"}}));
}

TEST(EprConsistencyTest, NeedsAWholeRevision) {
  CExample charger("epr-charger-140w.txt");
  charger.Remove(Component(1), "PD_Spec_Revision_Minor");
  EXPECT_THAT(charger.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "epr-consistency"))));
}

TEST(EprConsistencyTest, LeavesRevisionsThatDifferToTheirRule) {
  CExample charger("epr-charger-140w.txt");
  charger.Set(Component(1), "PD_Spec_Revision_Major", "2");
  EXPECT_EQ(charger.FindingsOf("pd-revision-pair").size(), 1U);
  EXPECT_THAT(charger.FindingsOf("epr-consistency"), Are({}));
}

TEST(EprConsistencyTest, LeavesRevision2ToItsRule) {
  CExample charger("epr-charger-140w.txt");
  charger.Set(Component(1), "PD_Spec_Revision_Major", "2").Set(Component(1), "PD_Specification_Revision", "1");
  EXPECT_THAT(charger.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "epr-consistency"))));
}

TEST(EprConsistencyTest, IsForEditionsFrom3_15) {
  const auto isSilent = testing::Not(testing::Contains(testing::Field(&Finding::code, "epr-consistency")));
  EXPECT_THAT(Charger("105000").SetEdition("3.14").Findings(), isSilent);
  EXPECT_THAT(Charger("105000").SetEdition("3.15").Findings(), testing::Not(isSilent));
}

}  // namespace
}  // namespace vifanalysis

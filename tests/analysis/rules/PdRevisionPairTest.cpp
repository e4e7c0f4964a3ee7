#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(PdRevisionPairTest, FindsTwoRevisions) {
  CExample older("gan-charger-65w.txt");
  older.Set(Component(1), "PD_Specification_Revision", "1");
  EXPECT_THAT(older.Findings(), Are({{"pd-revision-pair", "PD_Spec_Revision_Major",
                                      "Component 1: PD_Specification_Revision 1 stands for revision 2, but "
                                      "PD_Spec_Revision_Major is 3"}}));
  CExample newer("gan-charger-65w.txt");
  newer.Set(Component(1), "PD_Spec_Revision_Major", "2");
  EXPECT_THAT(newer.Findings(), Are({{"pd-revision-pair", "PD_Spec_Revision_Major",
                                      "Component 1: PD_Specification_Revision 2 stands for revision 3, but "
                                      "PD_Spec_Revision_Major is 2"}}));
}

TEST(PdRevisionPairTest, DoesNotKnowWhatOtherNumbersStandFor) {
  for (const char* number : {"3", "18446744073709551614"}) {
    CExample charger("gan-charger-65w.txt");
    charger.Set(Component(1), "PD_Specification_Revision", number);
    EXPECT_THAT(charger.Findings(),
                testing::Not(testing::Contains(testing::Field(&Finding::code, "pd-revision-pair"))));
  }
}

TEST(PdRevisionPairTest, IsSilentWhereOneIsMissing) {
  for (const char* name : {"PD_Specification_Revision", "PD_Spec_Revision_Major"}) {
    CExample charger("gan-charger-65w.txt");
    charger.Remove(Component(1), name);
    EXPECT_THAT(charger.Findings(), Are({}));
  }
}

TEST(PdRevisionPairTest, IsNotForOlderEditions) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("2.04").Set(Component(1), "PD_Spec_Revision_Major", "2");
  EXPECT_THAT(charger.Findings(), Are({}));
}
}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(ModalSvidsTest, FindsAModalPortWithoutSvids) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Modal_Operation_Supported_SOP", "YES");
  const Expected none = {"modal-svids", "Modal_Operation_Supported_SOP",
                         "Component 1: Modal_Operation_Supported_SOP is YES, but the port lists no SVID"};
  EXPECT_THAT(charger.Findings(), Are({none}));
  charger.Add(Component(1), "Num_SVIDs_Max_SOP", "0");
  EXPECT_THAT(charger.Findings(), Are({none}));
}

TEST(ModalSvidsTest, AllowsAModalPortThatOnlyCountsItsSvids) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Modal_Operation_Supported_SOP", "YES").Add(Component(1), "Num_SVIDs_Max_SOP", "1");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(ModalSvidsTest, DoesNotMissTheNumberInEditionsThatSpellItOtherwise) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("1.36").Set(Component(1), "Modal_Operation_Supported_SOP", "YES");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(ModalSvidsTest, FindsSvidsOfAPortThatIsNotModal) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(SopSvid(1, 1), "SVID_SOP", "0xFF01");
  EXPECT_THAT(charger.Findings(),
              Are({{"modal-svids", "Modal_Operation_Supported_SOP",
                    "Component 1: Modal_Operation_Supported_SOP is NO, but the port lists 1 SVID"}}));
}

TEST(ModalSvidsTest, FindsANumberOfSvidsOfAPortThatIsNotModal) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("2.04").Add(Component(1), "Num_SVIDs_Max_SOP", "2");
  EXPECT_THAT(charger.Findings(),
              Are({{"modal-svids", "Modal_Operation_Supported_SOP",
                    "Component 1: Modal_Operation_Supported_SOP is NO, but Num_SVIDs_Max_SOP is 2"}}));
}

TEST(ModalSvidsTest, IsSilentWhereNothingSaysWhetherThePortIsModal) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Responds_To_Discov_SOP_DFP", "NO")
      .Set(Component(1), "Product_Type_DFP_SOP", "0")
      .SetEdition("2.04")
      .Remove(Component(1), "Modal_Operation_Supported_SOP")
      .Add(SopSvid(1, 1), "SVID_SOP", "0xFF01");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(ModalSvidsTest, FindsAFixedListOfSvidsThatMayGrow) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Num_SVIDs_Min_SOP", "1");
  EXPECT_THAT(tablet.Findings(),
              Are({{"modal-svids", "SVID_Fixed_SOP",
                    "Component 1: SVID_Fixed_SOP is YES, but the numbers differ: Num_SVIDs_Min_SOP is 1, "
                    "Num_SVIDs_Max_SOP is 2"}}));
}

TEST(ModalSvidsTest, FindsFixedModesThatMayGrow) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(SopSvid(1, 2), "SVID_Num_Modes_Max_SOP", "3");
  EXPECT_THAT(tablet.Findings(), Are({{"modal-svids", "Modes_Fixed_SOP",
                                       "Component 1, SOP SVID 2: SVID_Modes_Fixed_SOP is YES, but the numbers differ: "
                                       "SVID_Num_Modes_Min_SOP is 2, SVID_Num_Modes_Max_SOP is 3"}}));
}

TEST(ModalSvidsTest, AllowsListsThatAreNotFixedToGrow) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "SVID_Fixed_SOP", "NO")
      .Set(Component(1), "Num_SVIDs_Min_SOP", "1")
      .Remove(SopSvid(1, 1), "SVID_Num_Modes_Min_SOP");
  EXPECT_THAT(tablet.Findings(), Are({}));
}

TEST(ModalSvidsTest, FindsSvidsThatHaveNoModes) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(SopSvid(1, 1), "SVID_SOP", "0").Set(SopSvid(1, 2), "SVID_SOP", "0xFF00");
  EXPECT_THAT(tablet.Findings(),
              Are({{"modal-svids", "SVID_SOP",
                    "Component 1, SOP SVID 1: SVID_SOP is 0x0000, which belongs to no vendor or standard"},
                   {"modal-svids", "SVID_SOP",
                    "Component 1, SOP SVID 2: SVID_SOP is 0xFF00, which is USB PD itself and has no modes"}}));
}

TEST(ModalSvidsTest, SeesSvidsWithoutANumber) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Modal_Operation_Supported_SOP", "YES")
      .Add(SopSvid(1, CVIFField::INDEX_NOT_SPECIFIED), "SVID_SOP", "0xFF01");
  EXPECT_THAT(charger.Findings(), Are({}));
  charger.Set(Component(1), "Modal_Operation_Supported_SOP", "NO");
  EXPECT_THAT(charger.Findings(),
              Are({{"modal-svids", "Modal_Operation_Supported_SOP",
                    "Component 1: Modal_Operation_Supported_SOP is NO, but the port lists SVIDs"}}));
}

TEST(ModalSvidsTest, LeavesAMinimumAboveItsMaximumToTheCounts) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Num_SVIDs_Min_SOP", "3");
  EXPECT_THAT(tablet.FindingsOf("modal-svids"), Are({}));
}

TEST(ModalSvidsTest, FindsAnSvidThatIsListedTwice) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(SopSvid(1, 2), "SVID_SOP", "0xFF01");
  EXPECT_THAT(
      tablet.Findings(),
      Are({{"modal-svids", "SVID_SOP", "Component 1, SOP SVID 2: SVID_SOP is 0xFF01, the same as in SOP SVID 1"}}));
}
}  // namespace
}  // namespace vifanalysis

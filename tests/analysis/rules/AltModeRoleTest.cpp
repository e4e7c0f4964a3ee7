#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(AltModeRoleTest, FindsAControllerThatDoesNotAsk) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Attempts_Discov_SOP", "NO");
  EXPECT_THAT(tablet.Findings(),
              Are({{"alt-mode-role", "Attempts_Discov_SOP",
                    "Component 1: Type_C_Is_Alt_Mode_Controller is YES, but Attempts_Discov_SOP is NO"}}));
}

TEST(AltModeRoleTest, FindsAnAdapterThatDoesNotAnswer) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Responds_To_Discov_SOP_UFP", "NO");
  EXPECT_THAT(tablet.Findings(),
              Are({{"alt-mode-role", "Responds_To_Discov_SOP_UFP",
                    "Component 1: Type_C_Is_Alt_Mode_Adapter is YES, but Responds_To_Discov_SOP_UFP is NO"}}));
}

TEST(AltModeRoleTest, FindsAnAdapterWhoseAnswerIsMissing) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Remove(Component(1), "Responds_To_Discov_SOP_UFP");
  EXPECT_THAT(tablet.Findings(),
              Are({{"alt-mode-role", "Type_C_Is_Alt_Mode_Adapter",
                    "Component 1: Type_C_Is_Alt_Mode_Adapter is YES, but Responds_To_Discov_SOP_UFP is missing"}}));
}

TEST(AltModeRoleTest, FindsAnAdapterThatIsNotModal) {
  CExample tablet("dual-role-tablet.txt");
  for (const char* name : {"SVID_Fixed_SOP", "Num_SVIDs_Min_SOP", "Num_SVIDs_Max_SOP"}) {
    tablet.Remove(Component(1), name);
  }
  tablet.RemoveGroup(SopSvid(1, 1)).RemoveGroup(SopSvid(1, 2));
  tablet.Set(Component(1), "Modal_Operation_Supported_SOP", "NO");
  EXPECT_THAT(tablet.Findings(),
              Are({{"alt-mode-role", "Modal_Operation_Supported_SOP",
                    "Component 1: Type_C_Is_Alt_Mode_Adapter is YES, but Modal_Operation_Supported_SOP is NO"}}));
}

TEST(AltModeRoleTest, FindsAnAdapterThatDoesNotSayWhetherItIsModal) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Remove(Component(1), "Modal_Operation_Supported_SOP");
  EXPECT_THAT(tablet.Findings(),
              Are({{"alt-mode-role", "Type_C_Is_Alt_Mode_Adapter",
                    "Component 1: Type_C_Is_Alt_Mode_Adapter is YES, but Modal_Operation_Supported_SOP is missing"}}));
}

TEST(AltModeRoleTest, IsSilentAboutModalOperationWhereItsSvidsContradictIt) {
  CExample tablet("dual-role-tablet.txt");
  tablet.SetEdition("2.04").Set(Component(1), "Modal_Operation_Supported_SOP", "NO");
  EXPECT_THAT(tablet.Findings(),
              Are({{"modal-svids", "Modal_Operation_Supported_SOP",
                    "Component 1: Modal_Operation_Supported_SOP is NO, but the port lists 2 SVIDs"}}));
}

TEST(AltModeRoleTest, AllowsAControllerThatDoesNotSayWhetherItAsks) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Remove(Component(1), "Attempts_Discov_SOP");
  EXPECT_THAT(tablet.Findings(), Are({}));
}

TEST(AltModeRoleTest, IsNotForOlderEditions) {
  CExample tablet("dual-role-tablet.txt");
  tablet.SetEdition("1.35").Set(Component(1), "Attempts_Discov_SOP", "NO");
  EXPECT_THAT(tablet.Findings(), Are({}));
}

TEST(AltModeRoleTest, BlamesAnAdapterThatSeveralFieldsContradict) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Type_C_Is_Alt_Mode_Adapter", "YES");
  EXPECT_THAT(charger.Findings(),
              Are({{"alt-mode-role", "Type_C_Is_Alt_Mode_Adapter",
                    "Component 1: Type_C_Is_Alt_Mode_Adapter is YES, but Modal_Operation_Supported_SOP is NO and "
                    "Responds_To_Discov_SOP_UFP is NO"}}));
}

}  // namespace
}  // namespace vifanalysis

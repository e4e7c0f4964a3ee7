#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "vconn-source-needed";

TEST(VconnSourceNeededTest, FindsEveryFieldThatNeedsVconn) {
  for (const std::string name : {"VCONN_Swap_To_On_Supported", "VCONN_Swap_To_Off_Supported", "SOP_P_Capable"}) {
    CExample iron("soldering-iron.txt");
    iron.Set(Component(1), name, "YES");
    EXPECT_THAT(iron.FindingsOf(kCode),
                Are({{kCode, name, "Component 1: " + name + " is YES, but Type_C_Sources_VCONN is NO"}}));
  }
}

TEST(VconnSourceNeededTest, BlamesVconnWhereSeveralFieldsNeedIt) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Type_C_Sources_VCONN", "NO");
  EXPECT_THAT(tablet.FindingsOf(kCode),
              Are({{kCode, "Type_C_Sources_VCONN",
                    "Component 1: VCONN_Swap_To_On_Supported, VCONN_Swap_To_Off_Supported and SOP_P_Capable are YES, "
                    "but Type_C_Sources_VCONN is NO"}}));
}

TEST(VconnSourceNeededTest, FindsTheFarEndOfTheCableWithoutTheNearOne) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "SOP_P_Capable", "NO");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
  charger.Set(Component(1), "SOP_PP_Capable", "YES");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "SOP_PP_Capable", "Component 1: SOP_PP_Capable is YES, but SOP_P_Capable is NO"}}));
}

TEST(VconnSourceNeededTest, FindsTheFarEndWithoutVconn) {
  CExample iron("soldering-iron.txt");
  iron.Remove(Component(1), "SOP_P_Capable").Set(Component(1), "SOP_PP_Capable", "YES");
  EXPECT_THAT(iron.FindingsOf(kCode),
              Are({{kCode, "SOP_PP_Capable", "Component 1: SOP_PP_Capable is YES, but Type_C_Sources_VCONN is NO"}}));
}

TEST(VconnSourceNeededTest, IsNotForCables) {
  CExample iron("soldering-iron.txt");
  iron.Set(Component(1), "SOP_P_Capable", "YES");
  EXPECT_THAT(CExample(iron).Set(Component(1), "PD_Port_Type", "5").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(iron).Set(Header(), "VIF_Product_Type", "1").FindingsOf(kCode), Are({}));
}

TEST(VconnSourceNeededTest, NeedsTheField) {
  CExample iron("soldering-iron.txt");
  iron.Set(Component(1), "SOP_P_Capable", "YES").Remove(Component(1), "Type_C_Sources_VCONN");
  EXPECT_THAT(iron.FindingsOf(kCode), Are({}));
}

}  // namespace
}  // namespace vifanalysis

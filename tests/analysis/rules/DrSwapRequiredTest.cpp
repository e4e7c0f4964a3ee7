#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "dr-swap-required";

constexpr const char* kToDfp = "DR_Swap_To_DFP_Supported";
constexpr const char* kToUfp = "DR_Swap_To_UFP_Supported";

std::vector<Expected> Both(const std::string& why) {
  return {{kCode, kToDfp, "Component 1: DR_Swap_To_DFP_Supported must be YES, because " + why},
          {kCode, kToUfp, "Component 1: DR_Swap_To_UFP_Supported must be YES, because " + why}};
}

TEST(DrSwapRequiredTest, FindsADrpThatIsOnlyAHost) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(1), kToDfp, "NO");
  EXPECT_THAT(laptop.FindingsOf(kCode),
              Are({{kCode, kToDfp,
                    "Component 1: DR_Swap_To_DFP_Supported must be YES, because the port is a DRP that can act only "
                    "as a host, but may start as a UFP"}}));
}

TEST(DrSwapRequiredTest, FindsADrpThatIsOnlyADevice) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Type_C_Can_Act_As_Host", "NO");
  EXPECT_THAT(tablet.FindingsOf(kCode), Are({}));
  tablet.Set(Component(1), kToUfp, "NO");
  EXPECT_THAT(tablet.FindingsOf(kCode),
              Are({{kCode, kToUfp,
                    "Component 1: DR_Swap_To_UFP_Supported must be YES, because the port is a DRP that can act only "
                    "as a device, but may start as a DFP"}}));
}

TEST(DrSwapRequiredTest, FindsASinkThatIsAHost) {
  CExample iron("soldering-iron.txt");
  iron.Set(Component(1), "Type_C_Can_Act_As_Host", "YES");
  EXPECT_THAT(iron.FindingsOf(kCode), Are(Both("the port starts as a UFP, but can act as a host")));
}

TEST(DrSwapRequiredTest, FindsASinkThatIsAnAlternateModeController) {
  CExample iron("soldering-iron.txt");
  iron.Set(Component(1), "Type_C_Is_Alt_Mode_Controller", "YES");
  EXPECT_THAT(iron.FindingsOf(kCode), Are(Both("the port starts as a UFP, but is an alternate mode controller")));
}

TEST(DrSwapRequiredTest, FindsASourceThatIsADevice) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Type_C_Can_Act_As_Device", "YES");
  EXPECT_THAT(charger.FindingsOf(kCode), Are(Both("the port starts as a DFP, but can act as a device")));
}

TEST(DrSwapRequiredTest, FindsAUsb4DfpThatIsNotOnAHub) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(2), "Type_C_Port_On_Hub", "NO");
  EXPECT_THAT(dock.FindingsOf(kCode),
              Are({{kCode, kToDfp,
                    "Component 2: DR_Swap_To_DFP_Supported must be YES, because the port can be a USB4 DFP and is not "
                    "on a hub"}}));
}

TEST(DrSwapRequiredTest, AllowsASourceThatIsAHostAndASinkThatIsADevice) {
  EXPECT_THAT(CExample("gan-charger-65w.txt").Set(Component(1), "Type_C_Can_Act_As_Host", "YES").FindingsOf(kCode),
              Are({}));
  EXPECT_THAT(CExample("soldering-iron.txt").Set(Component(1), "Type_C_Can_Act_As_Device", "YES").FindingsOf(kCode),
              Are({}));
}

TEST(DrSwapRequiredTest, TakesAPortWithARoleForAPdPortUnlessItSaysNo) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Type_C_Can_Act_As_Device", "YES");
  EXPECT_EQ(CExample(charger).Remove(Component(1), "USB_PD_Support").FindingsOf(kCode).size(), 2U);
  EXPECT_THAT(CExample(charger).Remove(Component(1), "PD_Port_Type").FindingsOf(kCode), Are({}));
}

TEST(DrSwapRequiredTest, IsNotForCablesOrWithoutUsbPd) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Type_C_Can_Act_As_Device", "YES");
  EXPECT_THAT(CExample(charger).Set(Component(1), "USB_PD_Support", "NO").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Set(Component(1), "PD_Port_Type", "5").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Set(Header(), "VIF_Product_Type", "1").FindingsOf(kCode), Are({}));
}

TEST(DrSwapRequiredTest, NeedsTheFieldsAndEdition2) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Type_C_Can_Act_As_Device", "YES");
  EXPECT_THAT(CExample(charger).Remove(Component(1), "Type_C_State_Machine").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Remove(Component(1), kToDfp).Remove(Component(1), kToUfp).FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).SetEdition("1.40").FindingsOf(kCode), Are({}));
  EXPECT_EQ(CExample(charger).SetEdition("2.0").FindingsOf(kCode).size(), 2U);
}

}  // namespace
}  // namespace vifanalysis

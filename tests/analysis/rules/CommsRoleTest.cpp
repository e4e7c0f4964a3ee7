#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "comms-role";

TEST(CommsRoleTest, FindsCommunicationWithoutADataRole) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "USB_Comms_Capable", "YES");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "USB_Comms_Capable",
                    "Component 1: USB_Comms_Capable is YES, but the port can act neither as host nor as device"}}));
}

TEST(CommsRoleTest, FindsAHostWithoutCommunication) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "USB_Comms_Capable", "NO");
  EXPECT_THAT(
      laptop.FindingsOf(kCode),
      Are({{kCode, "USB_Comms_Capable", "Component 2: USB_Comms_Capable is NO, but Type_C_Can_Act_As_Host is YES"}}));
}

TEST(CommsRoleTest, FindsADeviceWithoutCommunication) {
  CExample iron("soldering-iron.txt");
  iron.Set(Component(1), "Type_C_Can_Act_As_Device", "YES");
  EXPECT_THAT(
      iron.FindingsOf(kCode),
      Are({{kCode, "USB_Comms_Capable", "Component 1: USB_Comms_Capable is NO, but Type_C_Can_Act_As_Device is YES"}}));
}

TEST(CommsRoleTest, AllowsAPortOfAHub) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "USB_Comms_Capable", "YES").Set(Component(1), "Type_C_Port_On_Hub", "YES");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
}

TEST(CommsRoleTest, NeedsTheFields) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "USB_Comms_Capable", "YES");
  EXPECT_THAT(CExample(charger).Remove(Component(1), "Type_C_Can_Act_As_Host").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Remove(Component(1), "Type_C_Can_Act_As_Device").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Remove(Component(1), "USB_Comms_Capable").FindingsOf(kCode), Are({}));
}

}  // namespace
}  // namespace vifanalysis

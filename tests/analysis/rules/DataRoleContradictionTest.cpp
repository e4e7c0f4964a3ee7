#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "data-role-contradiction";

/// Changes one field of an example to YES or NO, and expects that it contradicts another one.
void ExpectContradiction(std::string_view example, std::uint64_t component, const std::string& name,
                         const std::string& value, const std::string& message) {
  CExample changed(example);
  changed.Set(Component(component), name, value);
  EXPECT_THAT(changed.FindingsOf(kCode), Are({{kCode, name, message}}));
}

TEST(DataRoleContradictionTest, FindsAnAnnouncedHostThatIsNotOne) {
  ExpectContradiction("gan-charger-65w.txt", 1, "Data_Capable_As_USB_Host_SOP", "YES",
                      "Component 1: Data_Capable_As_USB_Host_SOP is YES, but Type_C_Can_Act_As_Host is NO");
}

TEST(DataRoleContradictionTest, FindsAHostThatIsNotAnnounced) {
  ExpectContradiction("two-port-laptop.xml", 2, "Data_Capable_As_USB_Host_SOP", "NO",
                      "Component 2: Data_Capable_As_USB_Host_SOP is NO, but Type_C_Can_Act_As_Host is YES");
}

TEST(DataRoleContradictionTest, FindsAnAnnouncedDeviceThatIsNotOne) {
  ExpectContradiction("gan-charger-65w.txt", 1, "Data_Capable_As_USB_Device_SOP", "YES",
                      "Component 1: Data_Capable_As_USB_Device_SOP is YES, but Type_C_Can_Act_As_Device is NO");
}

TEST(DataRoleContradictionTest, FindsADeviceThatIsNotAnnounced) {
  ExpectContradiction("dual-role-tablet.txt", 1, "Data_Capable_As_USB_Device_SOP", "NO",
                      "Component 1: Data_Capable_As_USB_Device_SOP is NO, but Type_C_Can_Act_As_Device is YES");
}

TEST(DataRoleContradictionTest, FindsDataWithoutTheRole) {
  ExpectContradiction("gan-charger-65w.txt", 1, "Host_Supports_USB_Data", "YES",
                      "Component 1: Host_Supports_USB_Data is YES, but Type_C_Can_Act_As_Host is NO");
  ExpectContradiction("gan-charger-65w.txt", 1, "Device_Supports_USB_Data", "YES",
                      "Component 1: Device_Supports_USB_Data is YES, but Type_C_Can_Act_As_Device is NO");
}

TEST(DataRoleContradictionTest, FindsADfpOfAHubThatIsNotOnOne) {
  ExpectContradiction("dual-role-tablet.txt", 1, "Is_DFP_On_Hub", "YES",
                      "Component 1: Is_DFP_On_Hub is YES, but Type_C_Port_On_Hub is NO");
}

TEST(DataRoleContradictionTest, BlamesTheRoleThatTwoFieldsContradict) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Data_Capable_As_USB_Host_SOP", "YES").Set(Component(1), "Host_Supports_USB_Data", "YES");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "Type_C_Can_Act_As_Host",
                    "Component 1: Data_Capable_As_USB_Host_SOP and Host_Supports_USB_Data are YES, but "
                    "Type_C_Can_Act_As_Host is NO"}}));
}

TEST(DataRoleContradictionTest, AllowsARoleWithoutDataAndAUfpOfAHub) {
  EXPECT_THAT(CExample("dual-role-tablet.txt").Set(Component(1), "Host_Supports_USB_Data", "NO").FindingsOf(kCode),
              Are({}));
  EXPECT_THAT(CExample("dual-role-tablet.txt").Set(Component(1), "Type_C_Port_On_Hub", "YES").FindingsOf(kCode),
              Are({}));
}

TEST(DataRoleContradictionTest, NeedsBothFields) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Data_Capable_As_USB_Host_SOP", "YES").Remove(Component(1), "Type_C_Can_Act_As_Host");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
  charger.Remove(Component(1), "Data_Capable_As_USB_Host_SOP");
  EXPECT_THAT(charger.FindingsOf(kCode), Are({}));
}

TEST(DataRoleContradictionTest, IsTheOnlyFindingAboutARoleThatIsWrong) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "Type_C_Can_Act_As_Device", "false");  // or comms-role, usb4-needs, product-type-against-role
  EXPECT_THAT(dock.Findings(), Are({{kCode, "Type_C_Can_Act_As_Device",
                                     "Component 1: Data_Capable_As_USB_Device_SOP and Device_Supports_USB_Data are "
                                     "YES, but Type_C_Can_Act_As_Device is NO"}}));
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(1), "Type_C_Can_Act_As_Host", "false");
  EXPECT_THAT(laptop.Findings(), Are({{kCode, "Type_C_Can_Act_As_Host",
                                       "Component 1: Data_Capable_As_USB_Host_SOP and Host_Supports_USB_Data are YES, "
                                       "but Type_C_Can_Act_As_Host is NO"}}));
}

TEST(DataRoleContradictionTest, IsTheOnlyFindingAboutDataThatTheRoleDoesNotCarry) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "Host_Supports_USB_Data", "true");  // or details-missing
  EXPECT_THAT(dock.Findings(), Are({{kCode, "Host_Supports_USB_Data",
                                     "Component 1: Host_Supports_USB_Data is YES, but Type_C_Can_Act_As_Host is NO"}}));
}

}  // namespace
}  // namespace vifanalysis

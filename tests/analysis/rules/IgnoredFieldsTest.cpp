#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(IgnoredFieldsTest, FindsFieldsOfUsb4) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Add(Component(1), "USB4_Max_Speed", "1");
  EXPECT_THAT(tablet.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "USB4_Max_Speed",
                    "Component 1: USB4_Supported is NO, so nothing reads USB4_Max_Speed"}}));
}

TEST(IgnoredFieldsTest, FindsRoutersAndWhatTheProductSaysAboutUsb4) {
  CExample router("two-port-laptop.xml");
  router.Add(Router(1), "USB4_Router_ID", "0").Add(Router(2), "USB4_Router_ID", "1");
  EXPECT_THAT(router.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "USB4_Router_ID",
                    "Router 1: USB4_Supported is NO for every component, so nothing reads the routers"}}));
  CExample product("two-port-laptop.xml");
  product.Add(Product(), "USB4_Dock", "NO");
  EXPECT_THAT(
      product.FindingsOf("ignored-fields"),
      Are({{"ignored-fields", "USB4_Dock", "USB4_Supported is NO for every component, so nothing reads USB4_Dock"}}));
  product.Remove(Component(2), "USB4_Supported");
  EXPECT_THAT(product.FindingsOf("ignored-fields"), Are({}));
}

TEST(IgnoredFieldsTest, FindsIdsOfTheManufacturer) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Manufacturer_Info_Supported_Port", "NO");
  EXPECT_THAT(tablet.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "Manufacturer_Info_VID_Port",
                    "Component 1: Manufacturer_Info_Supported_Port is NO, so nothing reads Manufacturer_Info_VID_Port "
                    "and Manufacturer_Info_PID_Port"}}));
}

TEST(IgnoredFieldsTest, FindsFieldsOfOverCurrentProtection) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "PD_OC_Protection", "NO");
  EXPECT_THAT(tablet.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "PD_OCP_Method",
                    "Component 1: PD_OC_Protection is NO, so nothing reads PD_OCP_Method, Src_PD_OCP_OC_Debounce and "
                    "Src_PD_OCP_OC_Threshold"}}));
  tablet.Remove(Component(1), "PD_OCP_Method");
  EXPECT_THAT(tablet.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "Src_PD_OCP_OC_Debounce",
                    "Component 1, Source PDO 1: PD_OC_Protection is NO, so nothing reads Src_PD_OCP_OC_Debounce and "
                    "Src_PD_OCP_OC_Threshold"}}));
}

TEST(IgnoredFieldsTest, FindsSpeeds) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Host_Supports_USB_Data", "NO");
  EXPECT_THAT(tablet.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "Host_Speed",
                    "Component 1: Host_Supports_USB_Data is NO, so nothing reads Host_Speed"}}));
  CExample device("dual-role-tablet.txt");
  device.Set(Component(1), "Device_Supports_USB_Data", "NO");
  EXPECT_THAT(device.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "Device_Speed",
                    "Component 1: Device_Supports_USB_Data is NO, so nothing reads Device_Speed and "
                    "Device_Max_USB2_Speed"}}));
}

TEST(IgnoredFieldsTest, FindsAnEMarkerWithoutACable) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Add(Component(1), "Captive_Cable_Is_eMarked", "NO");
  EXPECT_THAT(tablet.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "Captive_Cable_Is_eMarked",
                    "Component 1: Captive_Cable is NO, so nothing reads Captive_Cable_Is_eMarked"}}));
}

TEST(IgnoredFieldsTest, FindsNumbersOfSvids) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "Num_SVIDs_Min_SOP", "0");
  EXPECT_THAT(charger.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "Num_SVIDs_Min_SOP",
                    "Component 1: Modal_Operation_Supported_SOP is NO, so nothing reads Num_SVIDs_Min_SOP"}}));
  charger.Add(Component(1), "Num_SVIDs_Max_SOP", "0");
  EXPECT_THAT(charger.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "Num_SVIDs_Min_SOP",
                    "Component 1: Modal_Operation_Supported_SOP is NO, so nothing reads Num_SVIDs_Min_SOP and "
                    "Num_SVIDs_Max_SOP"}}));
}

TEST(IgnoredFieldsTest, LeavesSvidsThatContradictTheFieldToAnotherRule) {
  CExample numbers("gan-charger-65w.txt");
  numbers.Add(Component(1), "Num_SVIDs_Max_SOP", "1");
  EXPECT_THAT(numbers.FindingsOf("ignored-fields"), Are({}));
  CExample svids("gan-charger-65w.txt");
  svids.Add(Component(1), "Num_SVIDs_Max_SOP", "0").Add(SopSvid(1, 1), "SVID_SOP", "0xFF01");
  EXPECT_THAT(svids.FindingsOf("ignored-fields"), Are({}));
}

TEST(IgnoredFieldsTest, FindsATypeWithoutAChargingPort) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Add(Component(1), "BC_1_2_Charging_Port_Type", "0");
  EXPECT_THAT(tablet.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "BC_1_2_Charging_Port_Type",
                    "Component 1: BC_1_2_Support is 1 (Portable Device), so nothing reads "
                    "BC_1_2_Charging_Port_Type"}}));
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "BC_1_2_Support", "0");
  EXPECT_THAT(charger.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "BC_1_2_Charging_Port_Type",
                    "Component 1: BC_1_2_Support is 0 (None), so nothing reads BC_1_2_Charging_Port_Type"}}));
  charger.Remove(Component(1), "BC_1_2_Support");
  EXPECT_THAT(charger.FindingsOf("ignored-fields"), Are({}));
}

TEST(IgnoredFieldsTest, FindsAnIdentityThatNobodyIsTold) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Responds_To_Discov_SOP_DFP", "NO");
  EXPECT_THAT(charger.FindingsOf("ignored-fields"),
              Are({{"ignored-fields", "XID_SOP",
                    "Component 1: Responds_To_Discov_SOP_UFP and Responds_To_Discov_SOP_DFP are both NO, so nothing "
                    "reads XID_SOP, Data_Capable_As_USB_Host_SOP, Data_Capable_As_USB_Device_SOP, "
                    "Product_Type_UFP_SOP, Product_Type_DFP_SOP and 5 more"}}));
  charger.Remove(Component(1), "Responds_To_Discov_SOP_UFP");
  EXPECT_THAT(charger.FindingsOf("ignored-fields"), Are({}));
}

TEST(IgnoredFieldsTest, SkipsGovernedFieldsWhoseGovernorIsMissing) {
  CExample tablet("dual-role-tablet.txt");
  for (const char* name : {"USB4_Supported", "Manufacturer_Info_Supported_Port", "PD_OC_Protection", "Captive_Cable",
                           "Host_Supports_USB_Data", "Device_Supports_USB_Data", "Modal_Operation_Supported_SOP"}) {
    tablet.Remove(Component(1), name);
  }
  tablet.Add(Component(1), "USB4_Max_Speed", "1").Add(Component(1), "Captive_Cable_Is_eMarked", "NO");
  EXPECT_THAT(tablet.FindingsOf("ignored-fields"), Are({}));
}

TEST(IgnoredFieldsTest, IsForEditionsFrom3_0) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Host_Supports_USB_Data", "NO").SetEdition("3.0");
  EXPECT_EQ(tablet.FindingsOf("ignored-fields").size(), 1U);
  tablet.SetEdition("2.20");
  EXPECT_THAT(tablet.FindingsOf("ignored-fields"), Are({}));
}

}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

Expected Missing(const std::string& announcedBy, const std::string& message) {
  return {"details-missing", announcedBy, "Component 1: " + message};
}

TEST(DetailsMissingTest, FindsWhatAnAnswerToDiscoverIdentityLacks) {
  for (const std::string name : {"USB_VID_SOP", "PID_SOP", "bcdDevice_SOP", "XID_SOP", "Data_Capable_As_USB_Host_SOP",
                                 "Data_Capable_As_USB_Device_SOP", "Modal_Operation_Supported_SOP",
                                 "Product_Type_DFP_SOP", "DFP_VDO_Port_Number"}) {
    CExample charger("gan-charger-65w.txt");
    charger.Remove(Component(1), name);
    EXPECT_THAT(charger.Findings(),
                Are({Missing("Responds_To_Discov_SOP_DFP",
                             "the port responds to Discover Identity, but " + name + " is missing")}));
  }
}

TEST(DetailsMissingTest, FindsAMissingProductTypeOfAUfp) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Remove(Component(1), "Product_Type_UFP_SOP");
  EXPECT_THAT(tablet.Findings(),
              Are({Missing("Responds_To_Discov_SOP_UFP",
                           "the port responds to Discover Identity, but Product_Type_UFP_SOP is missing")}));
}

TEST(DetailsMissingTest, NamesAllThatOneAnswerLacks) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "PID_SOP").Remove(Component(1), "XID_SOP").Remove(Component(1), "DFP_VDO_Port_Number");
  EXPECT_THAT(charger.Findings(),
              Are({Missing("Responds_To_Discov_SOP_DFP",
                           "the port responds to Discover Identity, but PID_SOP, XID_SOP and DFP_VDO_Port_Number are "
                           "missing")}));
}

TEST(DetailsMissingTest, AsksNoPortNumberOfAnUndefinedProduct) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Product_Type_DFP_SOP", "0").Remove(Component(1), "DFP_VDO_Port_Number");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(DetailsMissingTest, AsksNothingOfAPortThatDoesNotRespond) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("2.04")
      .Set(Component(1), "Responds_To_Discov_SOP_DFP", "NO")
      .Set(Component(1), "Product_Type_DFP_SOP", "0")
      .Remove(Component(1), "PID_SOP");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(DetailsMissingTest, AsksWhetherARoleCarriesDataFromEdition3_0) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Remove(Component(1), "Host_Supports_USB_Data");
  const Expected missing =
      Missing("Type_C_Can_Act_As_Host", "Type_C_Can_Act_As_Host is YES, but Host_Supports_USB_Data is missing");
  EXPECT_THAT(CExample(tablet).SetEdition("3.00").FindingsOf("details-missing"),
              testing::Contains(testing::Field(&Finding::message, missing.message)));
  EXPECT_THAT(CExample(tablet).SetEdition("2.04").FindingsOf("details-missing"),
              testing::Not(testing::Contains(testing::Field(&Finding::message, missing.message))));
}

TEST(DetailsMissingTest, AsksNoThresholdsOfAPdoWithoutASupplyType) {
  CExample laptop("two-port-laptop.xml");
  laptop.Remove(SrcPdo(1, 2), "Src_PD_OCP_OC_Threshold");
  EXPECT_EQ(laptop.FindingsOf("details-missing").size(), 1U);
  laptop.Remove(SrcPdo(1, 2), "Src_PDO_Supply_Type");
  EXPECT_THAT(laptop.FindingsOf("details-missing"), Are({}));
}

TEST(DetailsMissingTest, AsksNoFieldOfAnEditionBeforeIt) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("2.04").Remove(Component(1), "DFP_VDO_Port_Number");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(DetailsMissingTest, IsNotForOlderEditions) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("1.33").Remove(SrcPdo(1, 2), "Src_PD_OCP_OC_Threshold");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(DetailsMissingTest, FindsMissingManufacturerInfo) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "Manufacturer_Info_PID_Port");
  EXPECT_THAT(charger.Findings(),
              Are({Missing("Manufacturer_Info_Supported_Port",
                           "Manufacturer_Info_Supported_Port is YES, but Manufacturer_Info_PID_Port is missing")}));
  charger.Remove(Component(1), "Manufacturer_Info_VID_Port");
  EXPECT_THAT(charger.Findings(),
              Are({Missing("Manufacturer_Info_Supported_Port",
                           "Manufacturer_Info_Supported_Port is YES, but Manufacturer_Info_VID_Port and "
                           "Manufacturer_Info_PID_Port are missing")}));
}

TEST(DetailsMissingTest, FindsAMissingTypeOfAChargingPort) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "BC_1_2_Charging_Port_Type");
  EXPECT_THAT(charger.Findings(),
              Are({Missing("BC_1_2_Support",
                           "BC_1_2_Support is 2 (Charging Port), but BC_1_2_Charging_Port_Type is missing")}));
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "BC_1_2_Support", "3");
  EXPECT_THAT(tablet.Findings(),
              Are({Missing("BC_1_2_Support", "BC_1_2_Support is 3 (Both), but BC_1_2_Charging_Port_Type is missing")}));
}

TEST(DetailsMissingTest, FindsWhatIsMissingAboutUsbData) {
  const std::pair<const char*, const char*> announced[] = {
      {"Type_C_Can_Act_As_Host", "Host_Supports_USB_Data"},
      {"Host_Supports_USB_Data", "Host_Speed"},
      {"Type_C_Can_Act_As_Device", "Device_Supports_USB_Data"},
      {"Device_Supports_USB_Data", "Device_Speed"},
  };
  for (const auto& [by, name] : announced) {
    CExample tablet("dual-role-tablet.txt");
    tablet.Remove(Component(1), name);
    EXPECT_THAT(tablet.Findings(), Are({Missing(by, std::string(by) + " is YES, but " + name + " is missing")}));
  }
}

TEST(DetailsMissingTest, FindsAMissingMethodOfOverCurrentProtection) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "PD_OCP_Method");
  EXPECT_THAT(charger.Findings(),
              Are({Missing("PD_OC_Protection", "PD_OC_Protection is YES, but PD_OCP_Method is missing")}));
}

TEST(DetailsMissingTest, FindsMissingThresholdsOfCurrent) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("1.40").Remove(SrcPdo(1, 2), "Src_PD_OCP_OC_Threshold");
  EXPECT_THAT(charger.Findings(), Are({{"details-missing", "Src_PDO_Supply_Type",
                                        "Component 1, Source PDO 2: PD_OCP_Method is 0 (Over-Current Response), but "
                                        "Src_PD_OCP_OC_Threshold is missing"}}));
}

TEST(DetailsMissingTest, FindsMissingThresholdsOfVoltage) {
  const std::string missing = "but Src_PD_OCP_UV_Debounce and Src_PD_OCP_UV_Threshold are missing";
  CExample dock("usb4-dock.xml");
  dock.Set(Component(3), "PD_OCP_Method", "1", "Under-Voltage Response");
  EXPECT_THAT(dock.Findings(),
              Are({{"details-missing", "Src_PDO_Supply_Type",
                    "Component 3, Source PDO 1: PD_OCP_Method is 1 (Under-Voltage Response), " + missing}}));
  dock.Set(Component(3), "PD_OCP_Method", "2", "Both");
  EXPECT_THAT(dock.Findings(), Are({{"details-missing", "Src_PDO_Supply_Type",
                                     "Component 3, Source PDO 1: PD_OCP_Method is 2 (Both), " + missing}}));
}

TEST(DetailsMissingTest, AsksNoThresholdsWithoutProtection) {
  CExample charger("gan-charger-65w.txt");
  charger.SetEdition("2.04")
      .Set(Component(1), "PD_OC_Protection", "NO")
      .Remove(SrcPdo(1, 2), "Src_PD_OCP_OC_Threshold");
  EXPECT_THAT(charger.Findings(), Are({}));
}
}  // namespace
}  // namespace vifanalysis

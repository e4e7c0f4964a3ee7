#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(CableAndPortTest, FindsAFieldOfACableInAPort) {
  for (const char* name : {"Cable_Latency", "Active_Cable_USB_Gen", "Type_C_To_Type_A_B_C", "SBU_Supported",
                           "VBUS_Through_Cable", "Max_VBUS_Voltage_Vdm_V2", "EPR_Mode_Capable"}) {
    CExample charger("gan-charger-65w.txt");
    charger.Add(Component(1), name, "1");
    EXPECT_THAT(
        charger.FindingsOf("cable-and-port"),
        Are({{"cable-and-port", name,
              std::string("Component 1: VIF_Product_Type is 0 (Port Product), but ") + name + " belongs to a cable"}}));
  }
}

TEST(CableAndPortTest, FindsASvidOfACableInAPort) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(CableSvid(1, 1), "SVID", "0xFF01");
  EXPECT_THAT(charger.FindingsOf("cable-and-port"),
              Are({{"cable-and-port", "SVID",
                    "Component 1, Cable SVID 1: VIF_Product_Type is 0 (Port Product), but a cable's SVID belongs to a "
                    "cable"}}));
}

TEST(CableAndPortTest, ReportsAComponentOnce) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "VBUS_Through_Cable", "YES").Add(Component(1), "Cable_Latency", "1");
  EXPECT_THAT(charger.FindingsOf("cable-and-port"),
              Are({{"cable-and-port", "VBUS_Through_Cable",
                    "Component 1: VIF_Product_Type is 0 (Port Product), but VBUS_Through_Cable and Cable_Latency "
                    "belong to a cable"}}));
}

TEST(CableAndPortTest, AllowsFieldsOfACableWithAnEMarker) {
  CExample captive("gan-charger-65w.txt");
  captive.Add(Component(1), "Cable_Latency", "1").Add(Component(1), "Captive_Cable_Is_eMarked", "YES");
  EXPECT_THAT(captive.FindingsOf("cable-and-port"), Are({}));
  CExample component("active-cable.txt");
  component.Set(Header(), "VIF_Product_Type", "0");
  EXPECT_THAT(component.FindingsOf("cable-and-port"), Are({}));
}

TEST(CableAndPortTest, FindsARoleOfAPortInACable) {
  CExample cable("active-cable.txt");
  cable.Set(Component(1), "PD_Port_Type", "4");
  EXPECT_THAT(cable.FindingsOf("cable-and-port"),
              Are({{"cable-and-port", "PD_Port_Type",
                    "Component 1: VIF_Product_Type is 1 (Cable), but PD_Port_Type 4 (DRP) belongs to a port"}}));
}

TEST(CableAndPortTest, FindsAPowerRatingInACable) {
  for (const char* name : {"PD_Power_As_Source", "PD_Power_As_Sink"}) {
    CExample cable("active-cable.txt");
    cable.Add(Component(1), name, "1");
    EXPECT_THAT(cable.FindingsOf("cable-and-port"),
                Are({{"cable-and-port", name,
                      std::string("Component 1: VIF_Product_Type is 1 (Cable), but ") + name + " belongs to a port"}}));
    cable.Set(Component(1), name, "0");
    EXPECT_THAT(cable.FindingsOf("cable-and-port"), Are({}));
  }
}

TEST(CableAndPortTest, FindsPdosAndSvidsOfAPortInACable) {
  CExample source("active-cable.txt");
  source.Add(SrcPdo(1, 1), "Src_PDO_Voltage", "100");
  EXPECT_THAT(source.FindingsOf("cable-and-port"),
              Are({{"cable-and-port", "Src_PDO_Voltage",
                    "Component 1, Source PDO 1: VIF_Product_Type is 1 (Cable), but a source PDO belongs to a port"}}));
  CExample sink("active-cable.txt");
  sink.Add(SnkPdo(1, 1), "Snk_PDO_Voltage", "100");
  EXPECT_THAT(sink.FindingsOf("cable-and-port"),
              Are({{"cable-and-port", "Snk_PDO_Voltage",
                    "Component 1, Sink PDO 1: VIF_Product_Type is 1 (Cable), but a sink PDO belongs to a port"}}));
  CExample svid("active-cable.txt");
  svid.Add(SopSvid(1, 1), "SVID_SOP", "0xFF01");
  EXPECT_THAT(svid.FindingsOf("cable-and-port"),
              Are({{"cable-and-port", "SVID_SOP",
                    "Component 1, SOP SVID 1: VIF_Product_Type is 1 (Cable), but a port's SVID belongs to a port"}}));
}

TEST(CableAndPortTest, FindsAPortThatIsDeclaredACable) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Header(), "VIF_Product_Type", "1");
  EXPECT_THAT(charger.FindingsOf("cable-and-port"),
              Are({{"cable-and-port", "PD_Port_Type",
                    "Component 1: VIF_Product_Type is 1 (Cable), but PD_Port_Type 3 (Provider Only), "
                    "PD_Power_As_Source and a source PDO belong to a port"}}));
}

TEST(CableAndPortTest, FindsACableThatIsAReferencePlatform) {
  CExample cable("active-cable.txt");
  cable.Set(Product(), "Certification_Type", "1");
  EXPECT_THAT(cable.FindingsOf("cable-and-port"),
              Are({{"cable-and-port", "Certification_Type",
                    "Certification_Type is 1 (Reference Platform), which is not for a product whose VIF_Product_Type "
                    "is 1 (Cable)"}}));
  cable.Set(Product(), "Certification_Type", "2");
  EXPECT_THAT(cable.FindingsOf("cable-and-port"), Are({}));
}

TEST(CableAndPortTest, FindsARepeaterThatIsNotSilicon) {
  CExample repeater("gan-charger-65w.txt");
  repeater.Set(Header(), "VIF_Product_Type", "2");
  EXPECT_THAT(repeater.FindingsOf("cable-and-port"),
              Are({{"cable-and-port", "Certification_Type",
                    "Certification_Type is 0 (End Product), which is not for a product whose VIF_Product_Type is 2 "
                    "(Repeater)"}}));
  repeater.Set(Product(), "Certification_Type", "2");
  EXPECT_THAT(repeater.FindingsOf("cable-and-port"), Are({}));
}

TEST(CableAndPortTest, SaysNothingWhenTheKindIsMissing) {
  CExample cable("active-cable.txt");
  cable.Set(Component(1), "PD_Port_Type", "4").Remove(Header(), "VIF_Product_Type");
  EXPECT_THAT(cable.FindingsOf("cable-and-port"), Are({}));
  CExample withoutCertification("active-cable.txt");
  withoutCertification.Remove(Product(), "Certification_Type");
  EXPECT_THAT(withoutCertification.FindingsOf("cable-and-port"), Are({}));
}

TEST(CableAndPortTest, IsForEditionsFrom2_0) {
  CExample cable("active-cable.txt");
  cable.Set(Component(1), "PD_Port_Type", "4").SetEdition("2.0");
  EXPECT_EQ(cable.FindingsOf("cable-and-port").size(), 1U);
  cable.SetEdition("1.40");
  EXPECT_THAT(cable.FindingsOf("cable-and-port"), Are({}));
}

TEST(CableAndPortTest, IsTheOnlyFindingAboutACableWithTheRoleOfAPort) {
  CExample cable("active-cable.txt");
  cable.Set(Component(1), "PD_Port_Type", "3");  // or role-mismatch, role-incomplete
  EXPECT_THAT(cable.Findings(), Are({{"cable-and-port", "PD_Port_Type",
                                      "Component 1: VIF_Product_Type is 1 (Cable), but PD_Port_Type 3 (Provider Only) "
                                      "belongs to a port"}}));
}

}  // namespace
}  // namespace vifanalysis

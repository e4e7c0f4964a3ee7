#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

std::vector<Finding> FindingsAfter(std::uint64_t port, const char* name, const char* value) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(port), name, value);
  return dock.FindingsOf("usb4-needs");
}

TEST(Usb4NeedsTest, FindsAPortWithoutPd) {
  EXPECT_THAT(FindingsAfter(1, "USB_PD_Support", "false"),
              Are({{"usb4-needs", "Component[1]/USB_PD_Support",
                    "Component 1: USB4_Supported is YES, but USB_PD_Support is NO; USB4 is entered with a PD "
                    "message"}}));
}

TEST(Usb4NeedsTest, FindsAPortWithoutEnterUsb) {
  EXPECT_THAT(FindingsAfter(2, "Enter_USB_Supported", "false"),
              Are({{"usb4-needs", "Component[2]/Enter_USB_Supported",
                    "Component 2: USB4_Supported is YES, but Enter_USB_Supported is NO; USB4 is entered with "
                    "Enter_USB"}}));
}

TEST(Usb4NeedsTest, FindsAPortWithoutUsbCommunication) {
  EXPECT_THAT(FindingsAfter(1, "USB_Comms_Capable", "false"),
              Are({{"usb4-needs", "Component[1]/USB_Comms_Capable",
                    "Component 1: USB4_Supported is YES, but USB_Comms_Capable is NO; USB4 is USB communication"}}));
}

TEST(Usb4NeedsTest, FindsAnOldRevisionOfPd) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "PD_Specification_Revision", "1");
  EXPECT_THAT(dock.FindingsOf("usb4-needs"), Are({}));  // pd-revision-pair finds it
  dock.Remove(Component(1), "PD_Spec_Revision_Major");
  EXPECT_THAT(dock.FindingsOf("usb4-needs"), Are({}));  // pd3-feature-in-pd2 finds it
  for (const char* feature : {"Chunking_Implemented_SOP", "Manufacturer_Info_Supported_Port", "Data_Reset_Supported",
                              "Enter_USB_Supported"}) {
    dock.Remove(Component(1), feature);
  }
  EXPECT_THAT(dock.FindingsOf("usb4-needs"),
              Are({{"usb4-needs", "Component[1]/PD_Specification_Revision",
                    "Component 1: USB4_Supported is YES, but PD_Specification_Revision is 1 (Revision 2); USB4 "
                    "requires PD revision 3"}}));
}

TEST(Usb4NeedsTest, FindsAnotherConnector) {
  EXPECT_THAT(
      FindingsAfter(1, "Connector_Type", "0"),
      Are({{"usb4-needs", "Component[1]/Connector_Type",
            "Component 1: USB4_Supported is YES, but Connector_Type is 0 (Type-A); USB4 requires 2 (Type-C)"}}));
  EXPECT_EQ(FindingsAfter(1, "Connector_Type", "3").size(), 1U);
}

TEST(Usb4NeedsTest, FindsAPortWithoutADirection) {
  EXPECT_THAT(FindingsAfter(1, "USB4_UFP_Supported", "false"),
              Are({{"usb4-needs", "Component[1]/USB4_DFP_Supported",
                    "Component 1: USB4_Supported is YES, but USB4_DFP_Supported and USB4_UFP_Supported are both "
                    "NO"}}));
}

TEST(Usb4NeedsTest, FindsADfpThatIsNotAHost) {
  EXPECT_THAT(FindingsAfter(1, "USB4_DFP_Supported", "true"),
              Are({{"usb4-needs", "Component[1]/USB4_DFP_Supported",
                    "Component 1: USB4_DFP_Supported is YES, but Type_C_Can_Act_As_Host is NO; a USB4 DFP that is not "
                    "on a hub is a host"}}));
}

TEST(Usb4NeedsTest, FindsAUfpThatIsNotADevice) {
  CExample dock("usb4-dock.xml");
  for (const char* name : {"Type_C_Can_Act_As_Device", "Data_Capable_As_USB_Device_SOP", "Device_Supports_USB_Data"}) {
    dock.Set(Component(1), name, "false");  // one alone would be left to data-role-contradiction
  }
  EXPECT_THAT(dock.FindingsOf("usb4-needs"),
              Are({{"usb4-needs", "Component[1]/USB4_UFP_Supported",
                    "Component 1: USB4_UFP_Supported is YES, but Type_C_Can_Act_As_Device is NO; a USB4 UFP that is "
                    "not on a hub is a device"}}));
}

TEST(Usb4NeedsTest, AllowsHubPortsThatAreNeitherHostNorDevice) {
  EXPECT_THAT(FindingsAfter(2, "Type_C_Can_Act_As_Host", "false"), Are({}));
  EXPECT_THAT(FindingsAfter(2, "USB4_UFP_Supported", "true"), Are({}));
}

TEST(Usb4NeedsTest, SkipsFieldsThatAreMissing) {
  CExample dock("usb4-dock.xml");
  for (const char* name : {"USB_PD_Support", "Enter_USB_Supported", "USB_Comms_Capable", "PD_Specification_Revision",
                           "Connector_Type", "USB4_DFP_Supported", "USB4_UFP_Supported"}) {
    dock.Remove(Component(1), name);
  }
  EXPECT_THAT(dock.FindingsOf("usb4-needs"), Are({}));
}

TEST(Usb4NeedsTest, SkipsPortsWithoutUsb4) { EXPECT_THAT(FindingsAfter(3, "USB_Comms_Capable", "false"), Are({})); }

TEST(Usb4NeedsTest, IsForEditionsFrom3_0) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "Enter_USB_Supported", "false").SetEdition("3.0");
  EXPECT_EQ(dock.FindingsOf("usb4-needs").size(), 1U);
  dock.SetEdition("2.20");
  EXPECT_THAT(dock.FindingsOf("usb4-needs"), Are({}));
}

TEST(Usb4NeedsTest, IsTheOnlyFindingAboutWhatIsMissing) {
  CExample withoutComms("usb4-dock.xml");
  withoutComms.Set(Component(1), "USB_Comms_Capable", "false");  // or comms-role
  EXPECT_THAT(withoutComms.Findings(),
              Are({{"usb4-needs", "Component[1]/USB_Comms_Capable",
                    "Component 1: USB4_Supported is YES, but USB_Comms_Capable is NO; USB4 is USB communication"}}));
  CExample withoutPd("usb4-dock.xml");
  withoutPd.Set(Component(1), "USB_PD_Support", "false");  // or role-leftover
  EXPECT_THAT(withoutPd.Findings(),
              Are({{"usb4-needs", "Component[1]/USB_PD_Support",
                    "Component 1: USB4_Supported is YES, but USB_PD_Support is NO; USB4 is entered with a PD "
                    "message"}}));
}

}  // namespace
}  // namespace vifanalysis

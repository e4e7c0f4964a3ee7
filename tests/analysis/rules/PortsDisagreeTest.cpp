#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(PortsDisagreeTest, FindsIdsThatDiffer) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "USB_VID_SOP", "59726");
  EXPECT_THAT(laptop.FindingsOf("ports-disagree"),
              Are({{"ports-disagree", "Component[2]/USB_VID_SOP",
                    "Component 2: USB_VID_SOP is a matter of the product, but it is 0xE94E here and 0xE94D in "
                    "Component 1"}}));
}

TEST(PortsDisagreeTest, FindsRevisionsThatDiffer) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(1), "PD_Specification_Revision", "1").Set(Component(1), "PD_Spec_Revision_Major", "2");
  for (const char* name : {"PD_Spec_Revision_Minor", "PD_Spec_Version_Major", "PD_Spec_Version_Minor"}) {
    laptop.Remove(Component(1), name);
  }
  laptop.Remove(Component(2), "PD_Spec_Revision_Major");
  EXPECT_THAT(laptop.FindingsOf("ports-disagree"),
              Are({{"ports-disagree", "Component[2]/PD_Specification_Revision",
                    "Component 2: PD_Specification_Revision is a matter of the product, but it is 2 (Revision 3) here "
                    "and 1 (Revision 2) in Component 1"}}));
}

TEST(PortsDisagreeTest, ComparesWhatHoldsForTheProduct) {
  for (const auto& [name, value] :
       {std::pair("PD_Spec_Revision_Minor", "2"), std::pair("PD_Spec_Version_Minor", "1"), std::pair("XID_SOP", "9"),
        std::pair("Manufacturer_Info_VID_Port", "9"), std::pair("Num_Fixed_Batteries", "2"),
        std::pair("Num_Swappable_Battery_Slots", "1")}) {
    CExample laptop("two-port-laptop.xml");
    laptop.Set(Component(2), name, value);
    const std::vector<Finding> findings = laptop.FindingsOf("ports-disagree");
    ASSERT_EQ(findings.size(), 1U) << name;
    EXPECT_THAT(findings.front().element, testing::EndsWith(name));
  }
}

TEST(PortsDisagreeTest, LeavesAWrongRevisionToTheRulesAboutIt) {
  CExample laptop("two-port-laptop.xml");
  EXPECT_THAT(CExample(laptop).Set(Component(2), "PD_Spec_Revision_Major", "2").FindingsOf("ports-disagree"), Are({}));
  EXPECT_THAT(CExample(laptop).Set(Component(2), "PD_Spec_Version_Minor", "99").FindingsOf("ports-disagree"), Are({}));
}

TEST(PortsDisagreeTest, ReportsOnlyTheFirstPortThatDiffers) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(1), "XID_SOP", "40303");
  EXPECT_THAT(dock.FindingsOf("ports-disagree"),
              Are({{"ports-disagree", "Component[2]/XID_SOP",
                    "Component 2: XID_SOP is a matter of the product, but it is 40302 here and 40303 in "
                    "Component 1"}}));
}

TEST(PortsDisagreeTest, FindsALabelThatTwoPortsHave) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(3), "Port_Label", "1");
  EXPECT_THAT(
      dock.FindingsOf("ports-disagree"),
      Are({{"ports-disagree", "Component[3]/Port_Label",
            "Component 3: Port_Label is '1', the same as in Component 2; each port needs a label of its own"}}));
}

TEST(PortsDisagreeTest, SkipsPortsThatDoNotSayIt) {
  CExample laptop("two-port-laptop.xml");
  laptop.Remove(Component(2), "XID_SOP").Remove(Component(2), "Port_Label").Remove(Component(1), "Num_Fixed_Batteries");
  EXPECT_THAT(laptop.FindingsOf("ports-disagree"), Are({}));
}

TEST(PortsDisagreeTest, SaysNothingOfLabelsThatNobodyHasChosen) {
  CExample laptop("two-port-laptop.xml");
  for (const std::uint64_t port : {1U, 2U}) laptop.Set(Component(port), "Port_Label", "<select>");
  EXPECT_THAT(laptop.FindingsOf("ports-disagree"), Are({}));
}

TEST(PortsDisagreeTest, SkipsPortsWithoutPd) {
  CExample withoutPd("two-port-laptop.xml");
  withoutPd.Set(Component(2), "XID_SOP", "9").Set(Component(2), "USB_PD_Support", "false");
  EXPECT_THAT(withoutPd.FindingsOf("ports-disagree"), Are({}));
  CExample withoutRole("two-port-laptop.xml");
  withoutRole.Set(Component(2), "XID_SOP", "9").Remove(Component(2), "PD_Port_Type");
  EXPECT_THAT(withoutRole.FindingsOf("ports-disagree"), Are({}));
  CExample eMarker("two-port-laptop.xml");
  eMarker.Set(Component(2), "XID_SOP", "9").Set(Component(2), "PD_Port_Type", "5");
  EXPECT_THAT(eMarker.FindingsOf("ports-disagree"), Are({}));
}

TEST(PortsDisagreeTest, SaysNothingOfAFieldThatNobodyHasAnswered) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "Num_Fixed_Batteries", "4", "<select>");
  EXPECT_THAT(laptop.FindingsOf("ports-disagree"), Are({}));
}

TEST(PortsDisagreeTest, IsForEditionsFrom2_0) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(2), "XID_SOP", "9").SetEdition("2.0");
  EXPECT_EQ(laptop.FindingsOf("ports-disagree").size(), 1U);
  laptop.SetEdition("1.40");
  EXPECT_THAT(laptop.FindingsOf("ports-disagree"), Are({}));
}

}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(PlaceholderTest, FindsTextsThatStandForOthers) {
  for (const char* text : {"FIX-ME", "fix-me", "TBD", "n/a", "...", " Tbd ", "<vendor>", "Unknown"}) {
    CExample laptop("two-port-laptop.xml");
    laptop.Set(Header(), "Model_Part_Number", text);
    EXPECT_THAT(laptop.FindingsOf("placeholder"),
                Are({{"placeholder", "Model_Part_Number",
                      std::string("'Model_Part_Number' is '") + text + "', which looks like a placeholder"}}));
  }
}

TEST(PlaceholderTest, FindsThemInTextFiles) {
  for (const char* name : {"Vendor_Name", "Model_Part_Number", "Product_Revision", "TID"}) {
    CExample charger("gan-charger-65w.txt");
    charger.Set(Nowhere(), std::string("$") + name, "TBD");
    EXPECT_THAT(charger.FindingsOf("placeholder"),
                Are({{"placeholder", std::string("$") + name,
                      std::string("'$") + name + "' is 'TBD', which looks like a placeholder"}}));
  }
}

TEST(PlaceholderTest, FindsTidsThatNobodyHas) {
  for (const char* tid : {"0", "1", "12345", "65535", "N/A"}) {
    CExample laptop("two-port-laptop.xml");
    laptop.Set(Header(), "TID", tid);
    EXPECT_THAT(laptop.FindingsOf("placeholder"),
                Are({{"placeholder", "TID", std::string("'TID' is '") + tid + "', which looks like a placeholder"}}));
  }
}

TEST(PlaceholderTest, FindsIdsThatNobodyHas) {
  CExample port("gan-charger-65w.txt");
  port.Set(Component(1), "USB_VID_SOP", "0xFFFF");
  EXPECT_THAT(
      port.FindingsOf("placeholder"),
      Are({{"placeholder", "USB_VID_SOP", "Component 1: 'USB_VID_SOP' is 0xFFFF, which looks like a placeholder"}}));
  CExample cable("active-cable.txt");
  cable.Set(Component(1), "PID", "0");
  EXPECT_THAT(cable.FindingsOf("placeholder"),
              Are({{"placeholder", "PID", "Component 1: 'PID' is 0, which looks like a placeholder"}}));
}

TEST(PlaceholderTest, LooksAtAllVendorAndProductIds) {
  for (const char* name : {"USB_VID_SOP", "PID_SOP", "Manufacturer_Info_VID_Port", "Manufacturer_Info_PID_Port"}) {
    CExample charger("gan-charger-65w.txt");
    charger.Set(Component(1), name, "0");
    EXPECT_EQ(charger.FindingsOf("placeholder").size(), 1U) << name;
  }
  for (const char* name : {"USB_VID", "PID", "Manufacturer_Info_VID", "Manufacturer_Info_PID"}) {
    CExample cable("active-cable.txt");
    cable.Set(Component(1), name, "65535");
    EXPECT_EQ(cable.FindingsOf("placeholder").size(), 1U) << name;
  }
}

TEST(PlaceholderTest, AllowsOtherTextsAndIds) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Header(), "Vendor_Name", "TBD Industries")
      .Set(Header(), "Product_Revision", "0")
      .Set(Header(), "Model_Part_Number", "<12")
      .Set(Header(), "TID", "12346")
      .Set(Component(1), "Port_Label", "TBD")
      .Set(Component(1), "USB_VID_SOP", "1")
      .Set(Component(1), "PID_SOP", "65534")
      .Set(Component(1), "bcdDevice_SOP", "0")
      .Set(Component(2), "USB_VID_SOP", "none");
  EXPECT_THAT(laptop.FindingsOf("placeholder"), Are({}));
}

TEST(PlaceholderTest, AllowsTextsThatAreEmpty) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Header(), "Product_Revision", "  ").Set(Header(), "TID", "");
  EXPECT_THAT(laptop.FindingsOf("placeholder"), Are({}));
}

TEST(PlaceholderTest, LeavesWhatNobodyHasAnsweredToAnotherRule) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Header(), "Product_Revision", "<select>");
  EXPECT_THAT(laptop.Findings(),
              Are({{"unanswered", "Product_Revision", "'Product_Revision' is still the editor's \"<select>\""}}));
}

TEST(PlaceholderTest, IsForEveryEdition) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Header(), "TID", "0").SetEdition("what");
  EXPECT_EQ(laptop.FindingsOf("placeholder").size(), 1U);
}

}  // namespace
}  // namespace vifanalysis

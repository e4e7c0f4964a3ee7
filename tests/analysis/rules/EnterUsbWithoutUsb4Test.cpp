#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(EnterUsbWithoutUsb4Test, FindsIt) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Enter_USB_Supported", "YES");
  EXPECT_THAT(tablet.FindingsOf("enter-usb-without-usb4"),
              Are({{"enter-usb-without-usb4", "Enter_USB_Supported",
                    "Component 1: Enter_USB_Supported is YES, but USB4_Supported is NO; for USB 2.0 and USB 3.2 the "
                    "message is optional"}}));
}

TEST(EnterUsbWithoutUsb4Test, SkipsPortsThatDoNotSayWhetherTheySupportUsb4) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Enter_USB_Supported", "YES").Remove(Component(1), "USB4_Supported");
  EXPECT_THAT(tablet.FindingsOf("enter-usb-without-usb4"), Are({}));
}

TEST(EnterUsbWithoutUsb4Test, IsForEditionsFrom3_15) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "Enter_USB_Supported", "YES").SetEdition("3.15");
  EXPECT_EQ(tablet.FindingsOf("enter-usb-without-usb4").size(), 1U);
  tablet.SetEdition("3.14");
  EXPECT_THAT(tablet.FindingsOf("enter-usb-without-usb4"), Are({}));
}

}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(Usb4RouterTest, FindsAnIndexThatNoRouterHas) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(2), "USB4_Router_Index", "2");
  EXPECT_THAT(dock.FindingsOf("usb4-router"),
              Are({{"usb4-router", "Component[2]/USB4_Router_Index",
                    "Component 2: USB4_Router_Index is 2, but no router of the product has that USB4_Router_ID"}}));
}

TEST(Usb4RouterTest, FindsAProductWithoutRouters) {
  CExample dock("usb4-dock.xml");
  dock.RemoveGroup(Product());
  EXPECT_THAT(dock.FindingsOf("usb4-router"),
              Are({{"usb4-router", "Component[1]/USB4_Router_Index",
                    "Component 1: USB4_Router_Index is 0, but the product declares no router"},
                   {"usb4-router", "Component[2]/USB4_Router_Index",
                    "Component 2: USB4_Router_Index is 0, but the product declares no router"}}));
}

TEST(Usb4RouterTest, AllowsTheIdOfAnyRouter) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(2), "USB4_Router_Index", "1");
  EXPECT_THAT(dock.FindingsOf("usb4-router"), Are({}));
}

TEST(Usb4RouterTest, SkipsPortsWithoutAnIndexOrWithoutUsb4) {
  CExample dock("usb4-dock.xml");
  dock.Remove(Component(1), "USB4_Router_Index").Add(Component(3), "USB4_Router_Index", "7");
  EXPECT_THAT(dock.FindingsOf("usb4-router"), Are({}));
}

TEST(Usb4RouterTest, SaysNothingWhenARouterHasNoNumber) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(2), "USB4_Router_Index", "2");
  dock.Add(Router(CVIFField::INDEX_NOT_SPECIFIED), "USB4_Router_ID", "2");
  EXPECT_THAT(dock.FindingsOf("usb4-router"), Are({}));
}

TEST(Usb4RouterTest, SaysNothingWhenARouterHasNoId) {
  CExample dock("usb4-dock.xml");
  dock.Remove(Router(1), "USB4_Router_ID").Set(Component(2), "USB4_Router_Index", "2");
  EXPECT_THAT(dock.FindingsOf("usb4-router"), Are({}));
}

TEST(Usb4RouterTest, IsForEditionsFrom3_0) {
  CExample dock("usb4-dock.xml");
  dock.Set(Component(2), "USB4_Router_Index", "2").SetEdition("3.0");
  EXPECT_EQ(dock.FindingsOf("usb4-router").size(), 1U);
  dock.SetEdition("2.20");
  EXPECT_THAT(dock.FindingsOf("usb4-router"), Are({}));
}

}  // namespace
}  // namespace vifanalysis

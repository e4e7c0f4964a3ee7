#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(CaptivePlugTest, FindsACaptiveCableWithAReceptacle) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Captive_Cable", "YES");
  EXPECT_THAT(charger.FindingsOf("captive-plug"),
              Are({{"captive-plug", "ID_Header_Connector_Type_SOP",
                    "Component 1: Captive_Cable is YES, but ID_Header_Connector_Type_SOP is 2 (USB Type-C Receptacle); "
                    "a captive cable ends in a plug"}}));
  charger.Set(Component(1), "ID_Header_Connector_Type_SOP", "3");
  EXPECT_THAT(charger.FindingsOf("captive-plug"), Are({}));
}

TEST(CaptivePlugTest, FindsAPlugWithoutACaptiveCable) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "ID_Header_Connector_Type_SOP", "3");
  EXPECT_THAT(charger.FindingsOf("captive-plug"),
              Are({{"captive-plug", "ID_Header_Connector_Type_SOP",
                    "Component 1: Captive_Cable is NO, but ID_Header_Connector_Type_SOP is 3 (USB Type-C Plug); a port "
                    "of its own is a receptacle"}}));
}

TEST(CaptivePlugTest, SkipsFieldsThatAreMissingAndOtherTypes) {
  CExample withoutCable("gan-charger-65w.txt");
  withoutCable.Set(Component(1), "ID_Header_Connector_Type_SOP", "3").Remove(Component(1), "Captive_Cable");
  EXPECT_THAT(withoutCable.FindingsOf("captive-plug"), Are({}));
  CExample withoutType("gan-charger-65w.txt");
  withoutType.Set(Component(1), "Captive_Cable", "YES").Remove(Component(1), "ID_Header_Connector_Type_SOP");
  EXPECT_THAT(withoutType.FindingsOf("captive-plug"), Are({}));
  CExample otherType("gan-charger-65w.txt");
  otherType.Set(Component(1), "ID_Header_Connector_Type_SOP", "4");
  EXPECT_THAT(otherType.FindingsOf("captive-plug"), Are({}));
}

TEST(CaptivePlugTest, IsForEditionsFrom3_0) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Captive_Cable", "YES").SetEdition("3.0");
  EXPECT_EQ(charger.FindingsOf("captive-plug").size(), 1U);
  charger.SetEdition("2.20");
  EXPECT_THAT(charger.FindingsOf("captive-plug"), Are({}));
}

}  // namespace
}  // namespace vifanalysis

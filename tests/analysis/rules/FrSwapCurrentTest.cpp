#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "fr-swap-current";

constexpr const char* kSupported = "FR_Swap_Supported_As_Initial_Sink";
constexpr const char* kCurrent = "FR_Swap_Type_C_Current_Capability_As_Initial_Sink";

TEST(FrSwapCurrentTest, FindsASwapWithoutItsCurrent) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(1), kCurrent, "0", "FR_Swap not supported");
  EXPECT_THAT(laptop.FindingsOf(kCode),
              Are({{kCode, kCurrent,
                    "Component 1: FR_Swap_Supported_As_Initial_Sink is YES, but "
                    "FR_Swap_Type_C_Current_Capability_As_Initial_Sink is 0 (FR_Swap not supported)"}}));
}

TEST(FrSwapCurrentTest, FindsACurrentWithoutTheSwap) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), kCurrent, "3");
  EXPECT_THAT(tablet.FindingsOf(kCode), Are({{kCode, kCurrent,
                                              "Component 1: FR_Swap_Supported_As_Initial_Sink is NO, but "
                                              "FR_Swap_Type_C_Current_Capability_As_Initial_Sink is 3 (3A @ 5V)"}}));
}

TEST(FrSwapCurrentTest, AllowsOtherCurrents) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(Component(1), kCurrent, "1");
  EXPECT_THAT(laptop.FindingsOf(kCode), Are({}));
}

TEST(FrSwapCurrentTest, NeedsBothFieldsAndEdition3) {
  CExample tablet("dual-role-tablet.txt");
  EXPECT_THAT(CExample(tablet).Remove(Component(1), kCurrent).FindingsOf(kCode), Are({}));
  tablet.Set(Component(1), kCurrent, "3");
  EXPECT_THAT(CExample(tablet).Remove(Component(1), kSupported).FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(tablet).SetEdition("2.4").FindingsOf(kCode), Are({}));
  EXPECT_EQ(CExample(tablet).SetEdition("3.0").FindingsOf(kCode).size(), 1U);
}

}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "role-leftover";

TEST(RoleLeftoverTest, FindsAPowerOfASideThatThePortLacks) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "PD_Power_As_Sink", "15000");
  EXPECT_THAT(charger.FindingsOf(kCode),
              Are({{kCode, "PD_Power_As_Sink",
                    "Component 1: a Provider Only port has no sink side, but the port declares PD_Power_As_Sink"}}));
}

TEST(RoleLeftoverTest, FindsANumberOfPdos) {
  CExample iron("soldering-iron.txt");
  iron.Add(Component(1), "Num_Src_PDOs", "1");
  EXPECT_THAT(iron.FindingsOf(kCode),
              Are({{kCode, "Num_Src_PDOs",
                    "Component 1: a Consumer Only port has no source side, but the port declares Num_Src_PDOs"}}));
}

TEST(RoleLeftoverTest, FindsPdos) {
  CExample iron("soldering-iron.txt");
  iron.Add(SrcPdo(1, 1), "Src_PDO_Voltage", "100");
  EXPECT_THAT(iron.FindingsOf(kCode),
              Are({{kCode, "Src_PDO_Voltage",
                    "Component 1, Source PDO 1: a Consumer Only port has no source side, but the port declares source "
                    "PDOs"}}));
}

TEST(RoleLeftoverTest, FindsPdosWithoutANumber) {
  CExample iron("soldering-iron.txt");
  iron.Add(SrcPdo(1, CVIFField::INDEX_NOT_SPECIFIED), "Src_PDO_Voltage", "100");
  EXPECT_EQ(iron.FindingsOf(kCode).size(), 1U);
}

TEST(RoleLeftoverTest, FindsBothSidesWithoutUsbPd) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(Component(1), "USB_PD_Support", "NO");
  EXPECT_THAT(tablet.FindingsOf(kCode),
              Are({{kCode, "PD_Power_As_Source",
                    "Component 1: USB_PD_Support is NO, but the port declares PD_Power_As_Source, Num_Src_PDOs, source "
                    "PDOs, PD_Power_As_Sink, Num_Snk_PDOs and sink PDOs"}}));
}

TEST(RoleLeftoverTest, AllowsZero) {
  CExample iron("soldering-iron.txt");
  iron.Add(Component(1), "PD_Power_As_Source", "0").Add(Component(1), "Num_Src_PDOs", "0");
  EXPECT_THAT(iron.FindingsOf(kCode), Are({}));
}

TEST(RoleLeftoverTest, AllowsEverythingOfADualRoleAndOfNoRole) {
  CExample charger("gan-charger-65w.txt");
  charger.Add(Component(1), "PD_Power_As_Sink", "15000");
  EXPECT_THAT(CExample(charger).Set(Component(1), "PD_Port_Type", "2").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Remove(Component(1), "PD_Port_Type").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Set(Component(1), "PD_Port_Type", "5").FindingsOf(kCode), Are({}));
}

}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

constexpr const char* kCode = "role-incomplete";

TEST(RoleIncompleteTest, FindsASourceWithoutARating) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "PD_Power_As_Source");
  EXPECT_THAT(
      charger.FindingsOf(kCode),
      Are({{kCode, "PD_Port_Type", "Component 1: a Provider Only port needs PD_Power_As_Source, but it is missing"}}));
}

TEST(RoleIncompleteTest, FindsASinkWithoutARating) {
  CExample laptop("two-port-laptop.xml");
  laptop.Remove(Component(1), "PD_Power_As_Sink");
  EXPECT_THAT(laptop.FindingsOf(kCode),
              Are({{kCode, "PD_Port_Type", "Component 1: a DRP port needs PD_Power_As_Sink, but it is missing"}}));
}

TEST(RoleIncompleteTest, FindsARoleOfWhichTheFileHasNoSide) {
  CExample iron("soldering-iron.txt");
  iron.Set(Component(1), "PD_Port_Type", "1");
  EXPECT_THAT(
      iron.FindingsOf(kCode),
      Are({{kCode, "PD_Port_Type", "Component 1: a Consumer/Provider port needs source PDOs, but there is none"},
           {kCode, "PD_Port_Type",
            "Component 1: a Consumer/Provider port needs PD_Power_As_Source, but it is missing"}}));
}

TEST(RoleIncompleteTest, BlamesANumberOfPdosThatIs0) {
  CExample iron("soldering-iron.txt");
  iron.RemoveGroup(SnkPdo(1, 1)).RemoveGroup(SnkPdo(1, 2)).Set(Component(1), "Num_Snk_PDOs", "0");
  EXPECT_THAT(iron.FindingsOf(kCode),
              Are({{kCode, "Num_Snk_PDOs", "Component 1: a Consumer Only port needs sink PDOs, but there is none"}}));
}

TEST(RoleIncompleteTest, IsContentWithEitherThePdosOrTheirNumber) {
  CExample iron("soldering-iron.txt");
  EXPECT_THAT(CExample(iron).Remove(Component(1), "Num_Snk_PDOs").FindingsOf(kCode), Are({}));
  iron.RemoveGroup(SnkPdo(1, 1)).RemoveGroup(SnkPdo(1, 2));
  EXPECT_THAT(iron.FindingsOf(kCode), Are({}));
}

TEST(RoleIncompleteTest, CountsPdosWithoutANumber) {
  CExample iron("soldering-iron.txt");
  iron.RemoveGroup(SnkPdo(1, 1)).RemoveGroup(SnkPdo(1, 2)).Remove(Component(1), "Num_Snk_PDOs");
  iron.Add(SnkPdo(1, CVIFField::INDEX_NOT_SPECIFIED), "Snk_PDO_Voltage", "100");
  EXPECT_THAT(iron.FindingsOf(kCode), Are({}));
}

TEST(RoleIncompleteTest, IsNotForPortsWithoutUsbPdOrARoleOrWithAnUnknownOne) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "PD_Power_As_Source");
  EXPECT_THAT(CExample(charger).Set(Component(1), "USB_PD_Support", "NO").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Remove(Component(1), "PD_Port_Type").FindingsOf(kCode), Are({}));
  EXPECT_THAT(CExample(charger).Set(Component(1), "PD_Port_Type", "6").FindingsOf(kCode), Are({}));
}

TEST(RoleIncompleteTest, IsNotForEditionsThatSpellTheFieldsOtherwise) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(Component(1), "PD_Power_As_Source");
  EXPECT_THAT(CExample(charger).SetEdition("1.40").FindingsOf(kCode), Are({}));
  EXPECT_EQ(CExample(charger).SetEdition("2.0").FindingsOf(kCode).size(), 1U);
}

}  // namespace
}  // namespace vifanalysis

#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

TEST(PdoOrderTest, FindsASupplyAfterALaterKind) {
  CExample tablet("dual-role-tablet.txt");
  for (const std::uint64_t pdo : {4U, 5U}) {
    tablet.RemoveGroup(SnkPdo(1, pdo));
    tablet.Add(SnkPdo(1, pdo), "Snk_PDO_Supply_Type", pdo == 4 ? "2" : "1")
        .Add(SnkPdo(1, pdo), "Snk_PDO_Min_Voltage", "180")
        .Add(SnkPdo(1, pdo), "Snk_PDO_Max_Voltage", "300")
        .Add(SnkPdo(1, pdo), pdo == 4 ? "Snk_PDO_Op_Current" : "Snk_PDO_Op_Power", "100");
  }
  EXPECT_THAT(tablet.Findings(),
              Are({{"pdo-order", "Snk_PDO_Supply_Type",
                    "Component 1, Sink PDO 5: PDOs come in the order fixed, battery, variable, augmented, but "
                    "Snk_PDO_Supply_Type 1 (Battery) follows 2 (Variable)"}}));
}

TEST(PdoOrderTest, FindsAFixedVoltageThatFalls) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(SnkPdo(1, 3), "Snk_PDO_Voltage", "170");
  EXPECT_THAT(laptop.Findings(),
              Are({{"pdo-order", "Snk_PDO_Voltage",
                    "Component 1, Sink PDO 3: fixed PDOs come in rising order of their voltage, but 8.5 V follows "
                    "9 V"}}));
}

TEST(PdoOrderTest, FindsAFixedVoltageThatIsRepeated) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(SnkPdo(1, 3), "Snk_PDO_Voltage", "180");
  EXPECT_THAT(
      laptop.Findings(),
      Are({{"pdo-order", "Snk_PDO_Voltage", "Component 1, Sink PDO 3: the PDO repeats the 9 V of the PDO before"}}));
}

/// A tablet whose last two PDOs are of one supply.
CExample Tablet(const char* supply, const char* number, const char* minVoltage) {
  CExample tablet("dual-role-tablet.txt");
  for (const std::uint64_t pdo : {4U, 5U}) tablet.RemoveGroup(SnkPdo(1, pdo));
  for (const std::uint64_t pdo : {4U, 5U}) {
    tablet.Add(SnkPdo(1, pdo), "Snk_PDO_Supply_Type", supply)
        .Add(SnkPdo(1, pdo), "Snk_PDO_Min_Voltage", pdo == 4 ? "180" : minVoltage)
        .Add(SnkPdo(1, pdo), "Snk_PDO_Max_Voltage", "300")
        .Add(SnkPdo(1, pdo), number, "100");
  }
  return tablet;
}

TEST(PdoOrderTest, FindsALowestVoltageOfBatteriesThatFalls) {
  EXPECT_THAT(Tablet("1", "Snk_PDO_Op_Power", "181").Findings(), Are({}));
  EXPECT_THAT(Tablet("1", "Snk_PDO_Op_Power", "179").Findings(),
              Are({{"pdo-order", "Snk_PDO_Min_Voltage",
                    "Component 1, Sink PDO 5: battery PDOs come in rising order of their lowest voltage, but 8.95 V "
                    "follows 9 V"}}));
}

TEST(PdoOrderTest, FindsARangeOfVariableSuppliesThatIsRepeated) {
  EXPECT_THAT(Tablet("2", "Snk_PDO_Op_Current", "180").Findings(),
              Are({{"pdo-order", "Snk_PDO_Min_Voltage",
                    "Component 1, Sink PDO 5: the PDO repeats the 9 V to 15 V of the PDO before"}}));
}

TEST(PdoOrderTest, AllowsTheSameLowestVoltageWithAnotherHighest) {
  CExample tablet = Tablet("2", "Snk_PDO_Op_Current", "180");
  tablet.Set(SnkPdo(1, 5), "Snk_PDO_Max_Voltage", "290");
  EXPECT_THAT(tablet.Findings(), Are({}));
}

TEST(PdoOrderTest, FindsAHighestVoltageOfProgrammableSuppliesThatFalls) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Voltage", "110");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-order", "Src_PDO_Max_Voltage",
                    "Component 1, Source PDO 6: programmable PDOs come in rising order of their highest voltage, but "
                    "11 V follows 16 V"}}));
}

TEST(PdoOrderTest, FindsAProgrammableSupplyThatIsRepeated) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Voltage", "160");
  EXPECT_THAT(charger.Findings(), Are({}));
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Current", "60");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-order", "Src_PDO_Max_Voltage",
                    "Component 1, Source PDO 6: the PDO repeats the 3.3 V to 16 V at 3 A of the PDO before"}}));
}

TEST(PdoOrderTest, DoesNotCompareAugmentedPdosOfDifferentTypes) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 6), "Src_PDO_APDO_Type", "2");
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Voltage", "110");
  EXPECT_THAT(charger.Findings(), Are({}));
}

TEST(PdoOrderTest, HasFixedPdosOfTheExtendedRangeAfterTheStandardOnes) {
  CExample charger("epr-charger-140w.txt");
  EXPECT_THAT(charger.Findings(), Are({}));
  charger.Set(SrcPdo(1, 6), "Src_PDO_Voltage", "400");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-order", "Src_PDO_Supply_Type",
                    "Component 1, Source PDO 6: PDOs come in the order fixed, battery, variable, augmented, but "
                    "Src_PDO_Supply_Type 0 (Fixed) follows 3 (Augmented)"}}));
}

TEST(PdoOrderTest, DoesNotCompareWhatIsMissing) {
  CExample laptop("two-port-laptop.xml");
  laptop.Remove(SnkPdo(1, 3), "Snk_PDO_Supply_Type");
  EXPECT_THAT(laptop.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "pdo-order"))));
}

}  // namespace
}  // namespace vifanalysis

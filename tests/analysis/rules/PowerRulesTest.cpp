#include "Example.h"

#include <gtest/gtest.h>

#include <algorithm>

namespace vifanalysis {
namespace {

TEST(PowerRulesTest, FindsAVoltageThatIsMissing) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 2), "Src_PDO_Voltage", "200");
  EXPECT_THAT(
      charger.Findings(),
      Are({{"power-rules", "PD_Power_As_Source", "Component 1: a source of 65 W offers 9 V, but no fixed PDO does"}}));
}

TEST(PowerRulesTest, FindsEachVoltageThatIsMissing) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "Num_Src_PDOs", "4").RemoveGroup(SrcPdo(1, 2)).RemoveGroup(SrcPdo(1, 3));
  EXPECT_THAT(
      charger.Findings(),
      Are({{"power-rules", "PD_Power_As_Source", "Component 1: a source of 65 W offers 9 V, but no fixed PDO does"},
           {"power-rules", "PD_Power_As_Source", "Component 1: a source of 65 W offers 15 V, but no fixed PDO does"}}));
}

TEST(PowerRulesTest, FindsACurrentBelow3A) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 3), "Src_PDO_Max_Current", "298");
  EXPECT_THAT(charger.Findings(),
              Are({{"power-rules", "Src_PDO_Max_Current",
                    "Component 1, Source PDO 3: a source of 65 W offers at least 3 A at 15 V, but the PDO says "
                    "2.98 A"}}));
}

TEST(PowerRulesTest, AllowsOneStepLess) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 3), "Src_PDO_Max_Current", "299");
  EXPECT_THAT(charger.Findings(), Are({}));
}

/// A charger of another power, whose fixed PDOs up to that of 20 V have as much as it has.
CExample Charger(std::uint64_t watts) {
  CExample charger("gan-charger-65w.txt");
  const auto current = [&](std::uint64_t volts) {
    return std::to_string(std::min<std::uint64_t>(300, watts * 100 / volts));
  };
  charger.RemoveGroup(SrcPdo(1, 5)).RemoveGroup(SrcPdo(1, 6)).RemoveGroup(SrcPdo(1, 4));
  charger.Remove(Component(1), "Num_Src_PDOs").Set(Component(1), "PD_Power_As_Source", std::to_string(watts * 1000));
  if (watts < 27) charger.Set(SrcPdo(1, 2), "Src_PDO_Max_Current", current(9));
  if (watts < 45) charger.Set(SrcPdo(1, 3), "Src_PDO_Max_Current", current(15));
  return charger;
}

TEST(PowerRulesTest, Asks15VOfMoreThan27W) {
  EXPECT_THAT(Charger(27).RemoveGroup(SrcPdo(1, 3)).Findings(), Are({}));
  EXPECT_THAT(Charger(30).Findings(), Are({}));
  CExample charger = Charger(30);
  charger.Set(SrcPdo(1, 3), "Src_PDO_Voltage", "299");  // that makes nearly 30 W
  EXPECT_THAT(
      charger.Findings(),
      Are({{"power-rules", "PD_Power_As_Source", "Component 1: a source of 30 W offers 15 V, but no fixed PDO does"}}));
}

TEST(PowerRulesTest, Asks20VOfMoreThan45W) {
  EXPECT_THAT(Charger(45).Findings(), Are({}));
  CExample charger = Charger(45);
  charger.Set(Component(1), "PD_Power_As_Source", "45001");  // within one step of the PDO of 45 W
  EXPECT_THAT(charger.Findings(), Are({{"power-rules", "PD_Power_As_Source",
                                        "Component 1: a source of 45.001 W offers 20 V, but no fixed PDO does"}}));
}

TEST(PowerRulesTest, AsksForAllOfASmallPower) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(SrcPdo(1, 2), "Src_PDO_Max_Current", "199");
  EXPECT_THAT(laptop.Findings(), Are({}));
  laptop.Set(SrcPdo(1, 2), "Src_PDO_Max_Current", "198").Set(SrcPdo(1, 1), "Src_PDO_Max_Current", "330");
  EXPECT_THAT(laptop.Findings(),
              Are({{"rating-above-pdos", "PD_Power_As_Source",
                    "Component 1: PD_Power_As_Source is 18 W, but no source PDO is of more than 17.82 W"}}));
}

TEST(PowerRulesTest, AsksNothingOfOtherRevisionsAndOfSinks) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 3), "Src_PDO_Max_Current", "200");
  ASSERT_EQ(charger.Findings().size(), 1U);
  CExample older = charger;
  older.Set(Component(1), "PD_Specification_Revision", "1").Set(Component(1), "PD_Spec_Revision_Major", "2");
  CExample silent = charger;
  silent.Remove(Component(1), "PD_Specification_Revision");
  CExample sink = charger;
  sink.Remove(Component(1), "PD_Port_Type");
  for (const CExample& example : {older, silent, sink}) {
    EXPECT_THAT(example.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "power-rules"))));
  }
}

TEST(PowerRulesTest, AsksNothingWhileAVoltageIsMissing) {
  CExample charger("gan-charger-65w.txt");
  charger.Remove(SrcPdo(1, 2), "Src_PDO_Voltage");
  EXPECT_THAT(charger.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "power-rules"))));
}

TEST(PowerRulesTest, IsSilentAboutAnAbsurdRating) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(Component(1), "PD_Power_As_Source", "18446744073709551615");
  EXPECT_THAT(charger.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "power-rules"))));
}

}  // namespace
}  // namespace vifanalysis

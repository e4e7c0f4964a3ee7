#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

void AddPps(CExample& example, std::uint64_t pdo, const std::string& maxVoltage) {
  example.Add(SrcPdo(1, pdo), "Src_PDO_Supply_Type", "3")
      .Add(SrcPdo(1, pdo), "Src_PDO_APDO_Type", "0")
      .Add(SrcPdo(1, pdo), "Src_PDO_Min_Voltage", "33")
      .Add(SrcPdo(1, pdo), "Src_PDO_Max_Voltage", maxVoltage)
      .Add(SrcPdo(1, pdo), "Src_PDO_Max_Current", "60");
}

/// A charger with that many PDOs more, of 20 V, 20.1 V and so on; PDO 6 has 21 V and is left out.
CExample ChargerWithMore(std::uint64_t more) {
  CExample charger("gan-charger-65w.txt");
  charger.RemoveGroup(SrcPdo(1, 6));
  for (std::uint64_t i = 0; i <= more; ++i) AddPps(charger, 6 + i, std::to_string(200 + i));
  return charger;
}

TEST(PdoLimitsTest, FindsMorePdosThanThereCanBe) {
  EXPECT_THAT(ChargerWithMore(1).Findings(), Are({}));
  EXPECT_THAT(ChargerWithMore(2).Findings(),
              Are({{"pdo-limits", "Num_Src_PDOs", "Component 1: 8 source PDOs; there can be at most 7 without EPR"}}));
}

TEST(PdoLimitsTest, BlamesTheFirstPdoTooManyWhereNothingElseCountsThem) {
  CExample charger = ChargerWithMore(2);
  charger.Remove(Component(1), "Num_Src_PDOs");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-limits", "Src_PDO_Supply_Type",
                    "Component 1, Source PDO 8: 8 source PDOs; there can be at most 7 without EPR"}}));
}

TEST(PdoLimitsTest, AllowsMorePdosWithEpr) {
  CExample charger("epr-charger-140w.txt");
  const auto addAvs = [&](std::uint64_t pdo) {
    charger.Add(SrcPdo(1, pdo), "Src_PDO_Supply_Type", "3")
        .Add(SrcPdo(1, pdo), "Src_PDO_APDO_Type", "1")
        .Add(SrcPdo(1, pdo), "Src_PDO_PDP_Rating", "140");
  };
  for (std::uint64_t pdo = 8; pdo <= 11; ++pdo) addAvs(pdo);
  EXPECT_THAT(charger.Findings(), Are({}));
  addAvs(12);
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-limits", "Num_Src_PDOs", "Component 1: 12 source PDOs; there can be at most 11"}}));
}

TEST(PdoLimitsTest, FindsACurrentOfMoreThan5A) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 4), "Src_PDO_Max_Current", "501");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-limits", "Src_PDO_Max_Current",
                    "Component 1, Source PDO 4: Src_PDO_Max_Current is 5.01 A, but no PDO has more than 5 A"}}));
}

TEST(PdoLimitsTest, KnowsTheUnitOfTheCurrentOfAugmentedPdos) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Current", "100");
  EXPECT_THAT(charger.Findings(), Are({}));
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Current", "101");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-limits", "Src_PDO_Max_Current",
                    "Component 1, Source PDO 6: Src_PDO_Max_Current is 5.05 A, but no PDO has more than 5 A"}}));
}

TEST(PdoLimitsTest, FindsASourceWithoutCurrent) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 2), "Src_PDO_Max_Current", "0");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-limits", "Src_PDO_Max_Current",
                    "Component 1, Source PDO 2: Src_PDO_Max_Current is 0 A, but a source PDO offers a current"}}));
}

TEST(PdoLimitsTest, AllowsASinkWithoutCurrent) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(SnkPdo(1, 1), "Snk_PDO_Op_Current", "0");
  EXPECT_THAT(laptop.Findings(), Are({}));
}

TEST(PdoLimitsTest, FindsAFixedVoltageBelow5V) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 2), "Src_PDO_Voltage", "99");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-limits", "Src_PDO_Voltage",
                    "Component 1, Source PDO 2: Src_PDO_Voltage is 4.95 V, but a fixed PDO has at least 5 V"}}));
}

TEST(PdoLimitsTest, FindsAFixedVoltageThatNeedsEpr) {
  CExample laptop("two-port-laptop.xml");
  laptop.Set(SnkPdo(1, 4), "Snk_PDO_Voltage", "401");
  EXPECT_THAT(laptop.Findings(),
              Are({{"pdo-limits", "Snk_PDO_Voltage",
                    "Component 1, Sink PDO 4: Snk_PDO_Voltage is 20.05 V, but a fixed PDO of more than 20 V needs EPR, "
                    "and EPR_Supported_As_Snk is not YES"}}));
}

TEST(PdoLimitsTest, FindsAnotherVoltageThatNeedsEpr) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 6), "Src_PDO_Max_Voltage", "211");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-limits", "Src_PDO_Max_Voltage",
                    "Component 1, Source PDO 6: Src_PDO_Max_Voltage is 21.1 V, but a PDO of more than 21 V needs EPR, "
                    "and EPR_Supported_As_Src is not YES"}}));
}

TEST(PdoLimitsTest, FindsMissingEprOnce) {
  CExample charger("epr-charger-140w.txt");
  charger.Set(Component(1), "EPR_Supported_As_Src", "NO");
  EXPECT_THAT(charger.Findings(),
              Are({{"pdo-limits", "Src_PDO_Voltage",
                    "Component 1, Source PDO 6: Src_PDO_Voltage is 28 V, but a fixed PDO of more than 20 V needs EPR, "
                    "and EPR_Supported_As_Src is not YES"}}));
}

TEST(PdoLimitsTest, FindsMissingEprOnceInAListThatOnlyEprAllows) {
  CExample charger("epr-charger-140w.txt");
  const auto addAvs = [&](std::uint64_t pdo) {
    charger.Add(SrcPdo(1, pdo), "Src_PDO_Supply_Type", "3")
        .Add(SrcPdo(1, pdo), "Src_PDO_APDO_Type", "1")
        .Add(SrcPdo(1, pdo), "Src_PDO_PDP_Rating", "140");
  };
  addAvs(8);
  EXPECT_THAT(charger.Findings(), Are({}));
  charger.Set(Component(1), "EPR_Supported_As_Src", "NO");
  const Expected missing = {"pdo-limits", "Src_PDO_Voltage",
                            "Component 1, Source PDO 6: Src_PDO_Voltage is 28 V, but a fixed PDO of more than 20 V "
                            "needs EPR, and EPR_Supported_As_Src is not YES"};
  EXPECT_THAT(charger.FindingsOf("pdo-limits"), Are({missing}));
  for (std::uint64_t pdo = 9; pdo <= 12; ++pdo) addAvs(pdo);
  EXPECT_THAT(charger.FindingsOf("pdo-limits"),
              Are({missing, {"pdo-limits", "Num_Src_PDOs", "Component 1: 12 source PDOs; there can be at most 11"}}));
}

TEST(PdoLimitsTest, DoesNotRelyOnAnEprFieldThatIsUnanswered) {
  CExample charger("epr-charger-140w.txt");
  charger.Set(Component(1), "EPR_Supported_As_Src", "4", "<select>");
  EXPECT_THAT(charger.FindingsOf("pdo-limits"), Are({}));
}

TEST(PdoLimitsTest, FindsARangeThatEndsBelowItsStart) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(SnkPdo(1, 5), "Snk_PDO_Min_Voltage", "301");
  EXPECT_THAT(tablet.Findings(),
              Are({{"pdo-limits", "Snk_PDO_Min_Voltage",
                    "Component 1, Sink PDO 5: Snk_PDO_Min_Voltage is 15.05 V, more than Snk_PDO_Max_Voltage, 15 V"}}));
}

TEST(PdoLimitsTest, AllowsARangeOfOneVoltage) {
  CExample tablet("dual-role-tablet.txt");
  tablet.Set(SnkPdo(1, 5), "Snk_PDO_Min_Voltage", "300");
  EXPECT_THAT(tablet.Findings(), Are({}));
}

TEST(PdoLimitsTest, IgnoresAbsurdNumbers) {
  CExample charger("gan-charger-65w.txt");
  charger.Set(SrcPdo(1, 2), "Src_PDO_Max_Current", "18446744073709551615");
  EXPECT_THAT(charger.Findings(), testing::Not(testing::Contains(testing::Field(&Finding::code, "pdo-limits"))));
}

TEST(PdoLimitsTest, TakesNoNumberFromAPdoOfAWrongType) {
  CExample dock("usb4-dock.xml");
  dock.Set(SrcPdo(1, 1), "Src_PDO_Supply_Type", "3", "Augmented");
  EXPECT_THAT(dock.Findings(), Are({{"first-pdo-not-5v", "Src_PDO_Supply_Type",
                                     "Component 1, Source PDO 1: the first source PDO must be fixed at 5 V "
                                     "(Src_PDO_Supply_Type 0, Src_PDO_Voltage 100), but it has Src_PDO_Supply_Type 3 "
                                     "(Augmented)"}}));
}

}  // namespace
}  // namespace vifanalysis

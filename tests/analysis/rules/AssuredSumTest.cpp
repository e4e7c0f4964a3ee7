#include "Example.h"

#include <gtest/gtest.h>

namespace vifanalysis {
namespace {

CExample Laptop(const char* total) {
  CExample laptop("two-port-laptop.xml");
  for (const std::uint64_t component : {1U, 2U}) {
    laptop.Set(Component(component), "Product_Total_Source_Power_mW", total);
  }
  return laptop;
}

TEST(AssuredSumTest, FindsPortsThatAddUpToMoreThanTheProduct) {
  EXPECT_THAT(Laptop("32999").Findings(),
              Are({{"assured-sum", "Product_Total_Source_Power_mW",
                    "2 ports with assured power (Port_Source_Power_Type 0) add up to 33 W, but the "
                    "whole product has 32.999 W (Product_Total_Source_Power_mW)"}}));
}

TEST(AssuredSumTest, AllowsPortsThatMakeAsMuchAsTheProduct) { EXPECT_THAT(Laptop("33001").Findings(), Are({})); }

TEST(AssuredSumTest, NeedsTwoPortsWithAssuredPowerAndAllTotals) {
  const auto isSilent = testing::Not(testing::Contains(testing::Field(&Finding::code, "assured-sum")));
  EXPECT_THAT(Laptop("18000").Findings(), testing::Not(isSilent));
  EXPECT_THAT(Laptop("18000").Set(Component(2), "Port_Source_Power_Type", "1").Findings(), isSilent);
  EXPECT_THAT(Laptop("18000").Remove(Component(2), "Product_Total_Source_Power_mW").Findings(), isSilent);
  EXPECT_THAT(Laptop("18000").Remove(Component(2), "PD_Power_As_Source").Findings(), isSilent);
}

TEST(AssuredSumTest, LeavesAPortOfMorePowerThanTheProductToItsRule) {
  EXPECT_THAT(Laptop("17000").Findings(), Are({{"product-power", "PD_Power_As_Source",
                                                "Component 1: PD_Power_As_Source is 18 W, but the whole product has "
                                                "17 W (Product_Total_Source_Power_mW)"}}));
}

TEST(AssuredSumTest, IsForEditionsFrom2_0) {
  const auto isSilent = testing::Not(testing::Contains(testing::Field(&Finding::code, "assured-sum")));
  EXPECT_THAT(Laptop("18000").SetEdition("1.40").Findings(), isSilent);
  EXPECT_THAT(Laptop("18000").SetEdition("2.0").Findings(), testing::Not(isSilent));
}

}  // namespace
}  // namespace vifanalysis

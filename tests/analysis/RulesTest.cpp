#include <analysis/Rules.h>

#include <gtest/gtest.h>

#include <set>

namespace vifanalysis {
namespace {

TEST(RulesTest, HaveCodesOfTheirOwnAndSayWhatTheyFind) {
  std::set<std::string> codes;
  for (const RuleInfo& rule : Rules()) {
    EXPECT_TRUE(codes.insert(rule.code).second) << rule.code;
    EXPECT_NE(std::string_view(rule.what), "") << rule.code;
  }
  EXPECT_GT(codes.size(), 18U);
}

TEST(RulesTest, AreFoundInAnyLetterCase) {
  ASSERT_NE(FindRule("Pdo-Above-RATING"), nullptr);
  EXPECT_STREQ(FindRule("Pdo-Above-RATING")->code, "pdo-above-rating");
  EXPECT_EQ(FindRule("pdo-above"), nullptr);
  EXPECT_EQ(FindRule(""), nullptr);
}

TEST(RulesTest, AreSuggestedForCodesThatAreNearlyTheirs) {
  EXPECT_EQ(NearestCode("pdo-above-ratings"), "pdo-above-rating");
  EXPECT_EQ(NearestCode("Declared_Twice"), "declared-twice");
  EXPECT_EQ(NearestCode("something else altogether"), std::nullopt);
  EXPECT_EQ(NearestCode(std::string(100'000, 'a')), std::nullopt);
}

}  // namespace
}  // namespace vifanalysis

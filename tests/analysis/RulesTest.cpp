#include <analysis/Rules.h>

#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {
namespace {

TEST(RulesTest, HaveCodesOfTheirOwnAndSayWhatTheyFind) {
  std::set<std::string> codes;
  for (const RuleInfo& rule : Rules()) {
    EXPECT_TRUE(codes.insert(rule.code).second) << rule.code;
    EXPECT_NE(std::string_view(rule.what), "") << rule.code;
    EXPECT_TRUE(std::string_view(rule.why).ends_with('.')) << rule.code;
  }
  EXPECT_GT(codes.size(), 18U);
}

TEST(RulesTest, AreFoundInAnyLetterCase) {
  ASSERT_NE(FindRule("Pdo-Above-RATING"), nullptr);
  EXPECT_STREQ(FindRule("Pdo-Above-RATING")->code, "pdo-above-rating");
  EXPECT_EQ(FindRule("pdo-above"), nullptr);
  EXPECT_EQ(FindRule(""), nullptr);
}

TEST(RulesTest, AreAboutTheFieldsThatTheirTextsName) {
  std::vector<std::string> codes;
  for (const RuleInfo* rule : RulesAbout("PD_Power_As_Sink")) codes.emplace_back(rule->code);
  EXPECT_NE(std::find(codes.begin(), codes.end(), "pdo-above-rating"), codes.end());
  EXPECT_TRUE(RulesAbout("PD_Power").empty());
  EXPECT_TRUE(RulesAbout("").empty());
}

TEST(RulesTest, AreSuggestedForCodesThatAreNearlyTheirs) {
  EXPECT_EQ(NearestCode("pdo-above-ratings"), "pdo-above-rating");
  EXPECT_EQ(NearestCode("Declared_Twice"), "declared-twice");
  EXPECT_EQ(NearestCode("something else altogether"), std::nullopt);
  EXPECT_EQ(NearestCode(std::string(100'000, 'a')), std::nullopt);
}

}  // namespace
}  // namespace vifanalysis

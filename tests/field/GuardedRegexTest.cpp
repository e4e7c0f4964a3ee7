#include "GuardedRegex.h"

#include "RandomExpression.h"
#include "ReferenceNames.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <optional>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_literals;

/// What a match captured, as text; a group that took no part has none.
template <typename Results>
auto Captures(const Results& match) {
  std::vector<std::optional<std::basic_string<typename Results::value_type::value_type>>> captures;
  for (const auto& group : match) {
    captures.emplace_back();
    if (group.matched) captures.back().emplace(group.first, group.second);
  }
  return captures;
}

template <typename Char>
std::basic_string<Char> Converted(const std::string& text) {
  std::basic_string<Char> converted;
  for (const char c : text) converted += static_cast<Char>(static_cast<unsigned char>(c));
  return converted;
}

template <typename Char>
class GuardedRegex : public testing::Test {};

using CharacterTypes = testing::Types<char, wchar_t>;
TYPED_TEST_SUITE(GuardedRegex, CharacterTypes);

TYPED_TEST(GuardedRegex, MatchesTheWholeText) {
  const std::basic_regex<TypeParam> expression(Converted<TypeParam>("a+"));
  vif::GuardedMatch<TypeParam> match;
  EXPECT_TRUE(vif::GuardedRegexMatch<TypeParam>(Converted<TypeParam>("aaa"), match, expression));
  EXPECT_FALSE(vif::GuardedRegexMatch<TypeParam>(Converted<TypeParam>("aab"), match, expression));
  EXPECT_FALSE(vif::GuardedRegexMatch<TypeParam>({}, match, expression));
}

TYPED_TEST(GuardedRegex, AgreesWithTheUnguardedMatch) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  for (int i = 0; i < 3000; ++i) {
    const std::string pattern = randomexpression::Pattern(generator);
    const auto expression = randomexpression::Compiled(Converted<TypeParam>(pattern), std::regex_constants::ECMAScript);
    for (int j = 0; expression && j < 8; ++j) {
      const std::string subject = randomexpression::Subject(generator);
      const std::basic_string<TypeParam> text = Converted<TypeParam>(subject);
      vif::GuardedMatch<TypeParam> match;
      std::match_results<typename std::basic_string<TypeParam>::const_iterator> expected;
      ASSERT_EQ(vif::GuardedRegexMatch<TypeParam>(text, match, *expression),
                std::regex_match(text, expected, *expression))
          << reference::Shown(pattern) << " on " << reference::Shown(subject);
      ASSERT_EQ(Captures(match), Captures(expected))
          << reference::Shown(pattern) << " on " << reference::Shown(subject);
    }
  }
}

TYPED_TEST(GuardedRegex, TakesNamesOfAnyLikelyLength) {
  const std::basic_regex<TypeParam> expression(Converted<TypeParam>(".*"));
  vif::GuardedMatch<TypeParam> match;
  EXPECT_TRUE(vif::GuardedRegexMatch<TypeParam>(std::basic_string<TypeParam>(100, 'a'), match, expression));
}

TYPED_TEST(GuardedRegex, FailsInsteadOfRunningOffTheStack) {
  const std::basic_string<TypeParam> text(1'000'000, 'a');
  for (const std::string& pattern : {".*"s, "[a-z]*"s, "(a|b)*"s, "(a)\\1*"s, "(?=.*b).*"s, ".*b"s, "(.*)*"s}) {
    const std::basic_regex<TypeParam> expression(Converted<TypeParam>(pattern));
    vif::GuardedMatch<TypeParam> match;
    try {
      EXPECT_FALSE(vif::GuardedRegexMatch<TypeParam>(text, match, expression)) << pattern;
      ADD_FAILURE() << pattern;
    } catch (const std::regex_error& error) {
      EXPECT_EQ(error.code(), std::regex_constants::error_stack) << pattern;
    }
  }
}

}  // namespace

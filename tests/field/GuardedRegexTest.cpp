#include "GuardedRegex.h"

#include "RandomExpression.h"
#include "ReferenceNames.h"
#include "RegexOutcome.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_literals;
using testsupport::GuardedOutcome;
using testsupport::RegexOutcome;
using testsupport::RegexOutcomeOf;
using vif::CGuardedIterator;
using vif::GuardedMatch;
using vif::GuardedRegexMatch;
using vif::MatchBudget;

/// A match by the recursive engine alone, with the usual budget.
template <typename Char>
bool RecursiveMatch(std::basic_string_view<Char> text, GuardedMatch<Char>& match,
                    const std::basic_regex<Char>& expression) {
  return GuardedRegexMatch(text, match, expression, {testsupport::RecursionLimit(), vif::kMatchStepBudget});
}

// Helpers for both narrow and wide text.

template <typename Char>
std::basic_string<Char> Converted(const std::string& text) {
  std::basic_string<Char> converted;
  for (const char c : text) converted += static_cast<Char>(static_cast<unsigned char>(c));
  return converted;
}

/// The text between two positions, which is all that a guarded match returns.
template <typename Char>
std::basic_string<Char> Between(const CGuardedIterator<Char>& first, const CGuardedIterator<Char>& second) {
  return {first.Position(), second.Position()};
}

template <typename Iterator>
auto Between(const Iterator& first, const Iterator& second) {
  return std::basic_string<typename std::iterator_traits<Iterator>::value_type>(first, second);
}

/// The captures of a match as text; a group that did not participate has none.
template <typename Results>
auto Captures(const Results& match) {
  std::vector<std::optional<std::basic_string<typename Results::value_type::value_type>>> captures;
  for (const auto& group : match) {
    captures.emplace_back();
    if (group.matched) captures.back() = Between(group.first, group.second);
  }
  return captures;
}

template <typename Char>
class GuardedRegex : public testing::Test {};

using CharacterTypes = testing::Types<char, wchar_t>;
TYPED_TEST_SUITE(GuardedRegex, CharacterTypes);

TYPED_TEST(GuardedRegex, MatchesTheWholeText) {
  const std::basic_regex<TypeParam> expression(Converted<TypeParam>("a+"));
  GuardedMatch<TypeParam> match;
  EXPECT_TRUE(RecursiveMatch<TypeParam>(Converted<TypeParam>("aaa"), match, expression));
  EXPECT_FALSE(RecursiveMatch<TypeParam>(Converted<TypeParam>("aab"), match, expression));
  EXPECT_FALSE(RecursiveMatch<TypeParam>({}, match, expression));
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
      GuardedMatch<TypeParam> match;
      std::match_results<typename std::basic_string<TypeParam>::const_iterator> expected;
      ASSERT_EQ(RecursiveMatch<TypeParam>(text, match, *expression), std::regex_match(text, expected, *expression))
          << reference::Shown(pattern) << " on " << reference::Shown(subject);
      ASSERT_EQ(Captures(match), Captures(expected))
          << reference::Shown(pattern) << " on " << reference::Shown(subject);
    }
  }
}

TYPED_TEST(GuardedRegex, TakesNamesOfAnyLikelyLength) {
  const std::basic_regex<TypeParam> expression(Converted<TypeParam>(".*"));
  GuardedMatch<TypeParam> match;
  EXPECT_TRUE(RecursiveMatch<TypeParam>(std::basic_string<TypeParam>(100, 'a'), match, expression));
}

TYPED_TEST(GuardedRegex, FailsInsteadOfRunningOffTheStack) {
  const std::basic_string<TypeParam> text(1'000'000, 'a');
  for (const std::string& pattern : {".*"s, "[a-z]*"s, "(a|b)*"s, "(a)\\1*"s, "(?=.*b).*"s, ".*b"s, "(.*)*"s}) {
    const std::basic_regex<TypeParam> expression(Converted<TypeParam>(pattern));
    GuardedMatch<TypeParam> match;
    const RegexOutcome outcome = RegexOutcomeOf([&] { return RecursiveMatch<TypeParam>(text, match, expression); });
    EXPECT_FALSE(outcome.answer.has_value()) << pattern;
#if defined(__GLIBCXX__)
    EXPECT_EQ(outcome.error, std::regex_constants::error_stack) << pattern;
#else
    EXPECT_TRUE(outcome.IsWantOfStackOrTime()) << pattern;
#endif
  }
}

TYPED_TEST(GuardedRegex, FailsInsteadOfTakingAnyAmountOfMemory) {
  // A frame or two for each group and character is more than a gigabyte in all, on the stack or on the heap.
  const std::string groups = "(?:" + std::string(100, '(') + "a" + std::string(100, ')') + ")*";
  const std::basic_regex<TypeParam> expression(Converted<TypeParam>(groups));
  const std::basic_string<TypeParam> text(1'000'000, 'a');
  GuardedMatch<TypeParam> match;
  const RegexOutcome outcome = RegexOutcomeOf([&] { return RecursiveMatch<TypeParam>(text, match, expression); });
#if defined(__GLIBCXX__)
  EXPECT_EQ(outcome.error, std::regex_constants::error_stack);
#else
  EXPECT_TRUE(outcome.IsWantOfStackOrTime());
#endif
}

// With narrow text.

TEST(GuardedRegexMatch, MatchesTheWholeText) {
  EXPECT_TRUE(*GuardedOutcome("Src_(.*)", "SRC_PDO").answer);
  EXPECT_FALSE(*GuardedOutcome("Src", "Src_PDO").answer);
  EXPECT_FALSE(*GuardedOutcome("PDO", "Src_PDO").answer);
  EXPECT_TRUE(*GuardedOutcome(".*", "").answer);
  EXPECT_FALSE(*GuardedOutcome(".+", "").answer);
  EXPECT_TRUE(*GuardedOutcome("a.b", "a\0b"s).answer);
}

TEST(GuardedRegexMatch, LooksBackwardAsWellAsForward) {
  EXPECT_TRUE(*GuardedOutcome("a\\b-\\bb", "a-b").answer);
  EXPECT_FALSE(*GuardedOutcome("a\\bb", "ab").answer);
  EXPECT_TRUE(*GuardedOutcome("a(?=b)b", "ab").answer);
  EXPECT_TRUE(*GuardedOutcome("(a|b)\\1", "bb").answer);
}

TEST(GuardedRegexMatch, ReportsThePositionsOfTheGroups) {
  const std::string text = "Src_PDO_12";
  const std::regex expression("(\\w+?)_([A-Z]+)_(\\d+)(x)?");
  GuardedMatch<char> match;
  ASSERT_TRUE(RecursiveMatch(std::string_view(text), match, expression));
  ASSERT_EQ(match.size(), 5U);
  EXPECT_EQ(std::string(match[1].first.Position(), match[1].second.Position()), "Src");
  EXPECT_EQ(std::string(match[2].first.Position(), match[2].second.Position()), "PDO");
  EXPECT_EQ(std::string(match[3].first.Position(), match[3].second.Position()), "12");
  EXPECT_EQ(match[2].first.Position(), text.data() + 4);
  EXPECT_FALSE(match[4].matched);
}

TEST(GuardedRegexMatch, MatchesWideText) {
  const std::wregex expression(L"Ger(\u00E4|ae)t.*");
  GuardedMatch<wchar_t> match;
  EXPECT_TRUE(RecursiveMatch(std::wstring_view(L"Ger\u00E4t 1"), match, expression));
  EXPECT_EQ(match[1].first.Position()[0], L'\u00E4');
  EXPECT_FALSE(RecursiveMatch(std::wstring_view(L"Gerat"), match, expression));
}

TEST(GuardedRegexMatch, RunsOutOfTimeOnTextThatTakesTooManySteps) {
  for (const char* pattern :
       {"(a|aa)*x", "(a*)*x", "(a+)+x", "(a|a)*x", "(.*)(.*)(.*)(.*)(.*)(.*)(.*)x", "(a|aa)*\\1x"}) {
    const RegexOutcome outcome = GuardedOutcome(pattern, std::string(40, 'a'));
    EXPECT_TRUE(outcome.answer == false || outcome.error == std::regex_constants::error_complexity) << pattern;
#if defined(__GLIBCXX__)
    EXPECT_FALSE(outcome.answer.has_value()) << pattern;
#endif
  }
}

TEST(GuardedRegexMatch, RunsOutOfTimeWhereNothingIsLeftToRead) {
  std::string optionalNothing;
  for (int i = 0; i < 40; ++i) optionalNothing += "()?";
  for (const std::string& pattern :
       {optionalNothing, "a((((((((((((((((((((b*)*)*)*)*)*)*)*)*)*)*)*)*)*)*)*)*)*)*)*)*x"s}) {
    const RegexOutcome outcome = GuardedOutcome(pattern, "a");
    EXPECT_TRUE(outcome.answer == false || outcome.error == std::regex_constants::error_complexity) << pattern;
  }
}

TEST(GuardedRegexMatch, HasTheWholeBudgetEveryTime) {
  const std::regex expression("(a|aa)*x");
  const std::string difficult(40, 'a');
  const std::string easy = "aaaax";
  GuardedMatch<char> match;
  for (int i = 0; i < 3; ++i) {
    EXPECT_NE(RegexOutcomeOf([&] { return RecursiveMatch<char>(difficult, match, expression); }).answer, true);
    EXPECT_TRUE(RecursiveMatch<char>(easy, match, expression));
  }
}

TEST(GuardedRegexMatch, HasStackAndTimeForAnyUsualName) {
  const std::string name =
      "SOP_PP_Discovered_Modes_Of_A_Cable_With_A_Name_Of_Ninety_Characters_Or_So_In_All_Supported_1";
  for (const char* pattern :
       {".*", "(\\w+_)*\\d", "(.*)_(.*)_(.*)_\\d", "(?:[a-z]|_|\\d)*", "SOP(_[A-Z][a-z]*)*.*_1"}) {
    const RegexOutcome outcome = GuardedOutcome(pattern, name);
    EXPECT_EQ(outcome.answer, true) << pattern;
  }
}

TEST(GuardedIterator, MovesInBothDirections) {
  MatchBudget budget;
  const std::string text = "abc";
  CGuardedIterator<char> position(text.data(), budget);
  const CGuardedIterator<char> first = position;
  EXPECT_EQ(*position++, 'a');
  EXPECT_EQ(*position, 'b');
  EXPECT_EQ(*++position, 'c');
  EXPECT_EQ(*position--, 'c');
  EXPECT_EQ(*--position, 'a');
  EXPECT_TRUE(position == first);
  EXPECT_EQ(std::distance(first, CGuardedIterator<char>(text.data() + 3, budget)), 3);
}

TEST(GuardedIterator, FailsAfterTooManyReads) {
  MatchBudget budget;
  budget.stepsLeft = 2;
  const CGuardedIterator<char> position("a", budget);
  EXPECT_EQ(*position, 'a');
  EXPECT_EQ(*position, 'a');
  const RegexOutcome outcome = RegexOutcomeOf([&] { return *position == 'a'; });
  EXPECT_EQ(outcome.error, std::regex_constants::error_complexity);
}

TEST(GuardedIterator, FailsAfterTooManyComparisons) {
  MatchBudget budget;
  budget.stepsLeft = 1;
  const CGuardedIterator<char> position("a", budget);
  const CGuardedIterator<char> same = position;
  EXPECT_TRUE(position == same);
  EXPECT_EQ(RegexOutcomeOf([&] { return position == same; }).error, std::regex_constants::error_complexity);
}

TEST(GuardedIterator, OfNoTextIsComparedWithoutABudget) {
  EXPECT_TRUE(CGuardedIterator<char>() == CGuardedIterator<char>());
}

TEST(GuardedIterator, FailsWhenTheStackIsTooDeep) {
  MatchBudget budget;
  budget.lowestFrame = std::numeric_limits<std::uintptr_t>::max();
  const CGuardedIterator<char> position("a", budget);
  EXPECT_EQ(RegexOutcomeOf([&] { return *position == 'a'; }).error, std::regex_constants::error_stack);
}

}  // namespace

// Name patterns against the standard library's plain engine, and on names that overwhelm it.
#include "NamePattern.h"

#include "RandomExpression.h"
#include "RegexGrammar.h"
#include "RegexOutcome.h"
#include "RunOnStack.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <ostream>
#include <regex>
#include <string>
#include <string_view>

namespace {

using testsupport::CPatternGenerator;
using testsupport::GuardedOutcome;
using testsupport::kHasStepwise;
using testsupport::kNameSyntax;
using testsupport::NamePatternOutcome;
using testsupport::RegexOutcome;
using testsupport::RegexOutcomeOf;
using testsupport::RunOnSmallStack;
using testsupport::RunOnStack;
using vif::CGuardedIterator;
using vif::MatchBudget;

// Where only the length of the text limits the steps, a hostile pattern may take minutes on a long one.
constexpr std::size_t kLong = kHasStepwise ? 200'000 : 2'000;

// Long names

struct LongNameCase {
  const char* pattern;
  const char* end;  // of the name, after 200,000 times "a"
  bool expected;
};

void PrintTo(const LongNameCase& value, std::ostream* stream) {
  *stream << value.pattern << " on a name that ends in \"" << value.end << '"';
}

class LongName : public testing::TestWithParam<LongNameCase> {};

TEST_P(LongName, IsAnswered) {
  const LongNameCase& tried = GetParam();
  const std::string name = std::string(kLong, 'a') + tried.end;
  const auto expectAnswer = [&] {
    const RegexOutcome outcome = NamePatternOutcome(tried.pattern, name);
    EXPECT_TRUE(outcome.answer == tried.expected || (!kHasStepwise && outcome.IsWantOfStackOrTime()));
  };
  expectAnswer();
  RunOnSmallStack(expectAnswer);
}

INSTANTIATE_TEST_SUITE_P(Without, LongName,
                         testing::Values(LongNameCase{".*", "", true}, LongNameCase{".*", "\n", false},
                                         LongNameCase{".*x", "", false}, LongNameCase{".*x", "x", true},
                                         LongNameCase{"(a|b)*", "", true}, LongNameCase{"(a|b)*", "c", false},
                                         LongNameCase{"A*", "", true}, LongNameCase{"[a-c]+", "", true},
                                         LongNameCase{"[^a]*", "", false}, LongNameCase{"(a|aa)*x", "", false},
                                         LongNameCase{"(a|aa)*x", "x", true}, LongNameCase{"(a*)*x", "", false},
                                         LongNameCase{"(a+)+x", "", false}, LongNameCase{"(?=a+)a*", "", true},
                                         LongNameCase{"(?!b)a*", "", true}, LongNameCase{"(?!a)a*", "", false},
                                         LongNameCase{"(?=a*x)a*", "", false}, LongNameCase{".*\\b", "", true},
                                         LongNameCase{"^.*$", "", true}, LongNameCase{"\\w*", "", true},
                                         LongNameCase{"(.*a)?", "", true}, LongNameCase{"a{1,50}", "", false},
                                         LongNameCase{"(.*)(.*)(.*)x", "", false}, LongNameCase{".*?", "", true}));

class LongNameWithReference : public testing::TestWithParam<LongNameCase> {};

TEST_P(LongNameWithReference, AnswersOrRunsOutOfStackOrTime) {
  const LongNameCase& tried = GetParam();
  const std::string name = std::string(kLong, 'a') + tried.end;
  const auto expectAnEnd = [&] {
    const RegexOutcome outcome = NamePatternOutcome(tried.pattern, name);
    EXPECT_TRUE(outcome.answer == tried.expected || outcome.IsWantOfStackOrTime());
  };
  expectAnEnd();
  RunOnSmallStack(expectAnEnd);
}

INSTANTIATE_TEST_SUITE_P(ToAGroup, LongNameWithReference,
                         testing::Values(LongNameCase{"(a)\\1*", "", true}, LongNameCase{"(a)\\1*", "b", false},
                                         LongNameCase{"(a*)\\1", "", true}, LongNameCase{"(a|aa)*\\1x", "", false},
                                         LongNameCase{"(a+)\\1+b", "", false}, LongNameCase{"(a)?\\1a*", "", true}));

TEST(LongNames, MayFollowOrPrecedeShortOnes) {
  const std::string name(kLong, 'a');
  for (const char* text : {"(a|b)*", "(a)\\1*"}) {
    vif::CNamePattern pattern(text);
    for (int i = 0; i < 2; ++i) {
      EXPECT_TRUE(pattern.Matches("aaa"));
      EXPECT_FALSE(pattern.Matches("aac"));
      const RegexOutcome outcome = RegexOutcomeOf([&] { return pattern.Matches(name.c_str()); });
      EXPECT_TRUE(outcome.answer == true || outcome.IsWantOfStackOrTime()) << text;
    }
  }
}

// Comparison with the plain engine, over generated patterns.

/// The plain engine's answer when it may use any amount of stack; nothing if it takes too many steps.
std::optional<bool> PlainAnswer(const std::regex& expression, const std::string& text) {
  MatchBudget budget;
  budget.stepsLeft = 200'000;
  const CGuardedIterator<char> first(text.data(), budget);
  const CGuardedIterator<char> last(text.data() + text.size(), budget);
  return RegexOutcomeOf([&] { return std::regex_match(first, last, expression); }).answer;
}

constexpr std::string_view kNameCharacters = "aaabbAB1_. ";

/// Compares with the plain engine: creates `matches` from each pattern and asks it about names.
template <typename MakeMatches>
void ExpectAgreementWithPlainEngine(CPatternGenerator& generator, const MakeMatches& makeMatches) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::size_t fitting = 0;
  for (int i = 0; i < 4000; ++i) {
    const std::string text = generator.Pattern();
    if (text.empty()) continue;
    // libc++ rejects a reference to a group that is still open.
    const std::optional<std::regex> expression = randomexpression::Compiled(text, kNameSyntax);
    if (!expression) continue;
    auto matches = makeMatches(text);
    for (int j = 0; j < 12; ++j) {
      const std::string name = generator.Name(7, kNameCharacters);
      if (!PlainAnswer(*expression, name)) continue;
      const bool expected = std::regex_match(name, *expression);
      ASSERT_EQ(matches(name), expected) << text << " on " << name;
      fitting += expected ? 1U : 0U;
    }
  }
  EXPECT_GT(fitting, 1000U);
}

TEST(NamePatternDifferential, AgreesWithThePlainEngine) {
  CPatternGenerator generator(true);
  ExpectAgreementWithPlainEngine(generator, [](const std::string& text) {
    return [pattern = vif::CNamePattern(text.c_str())](const std::string& name) mutable {
      return pattern.Matches(name.c_str());
    };
  });
}

#if defined(__GLIBCXX__)

TEST(NamePatternDifferential, StepwiseEngineAgreesWithThePlainOne) {
  CPatternGenerator generator(false);
  ExpectAgreementWithPlainEngine(generator, [](const std::string& text) {
    return [expression = std::regex(text, kNameSyntax | std::regex_constants::__polynomial)](const std::string& name) {
      return std::regex_match(name, expression);
    };
  });
}

#endif

TEST(NamePatternDifferential, AgreesWithThePlainEngineOnNamesThatAreTooLongForIt) {
  if (testsupport::kIsThreadSanitized) GTEST_SKIP() << "ThreadSanitizer never frees deep call stacks.";
  SCOPED_TRACE(testsupport::SeedMessage());
  constexpr std::size_t largeStack = 256 * 1024 * 1024;
  CPatternGenerator generator(false);
  std::size_t tooLong = 0;
  std::size_t fitting = 0;
  RunOnStack(largeStack, [&] {
    for (int i = 0; i < 300; ++i) {
      const std::string text = "(?:" + generator.Alternatives(1) + "|ab|a)*" + generator.Alternatives(1);
      std::string name;
      while (name.size() < 1000) name += generator.Below(2) == 0 ? "ab" : "a";
      name += generator.Name(2, kNameCharacters);
      const std::optional<bool> expected = PlainAnswer(std::regex(text, kNameSyntax), name);
      if (!expected) continue;
      tooLong += GuardedOutcome(text, name).answer ? 0U : 1U;
      fitting += *expected ? 1U : 0U;
      const RegexOutcome outcome = NamePatternOutcome(text, name);
      ASSERT_TRUE(outcome.answer == expected || (!kHasStepwise && outcome.IsWantOfStackOrTime()))
          << text << " on " << name;
    }
  });
  EXPECT_GT(fitting, 50U);
#if defined(__GLIBCXX__)
  EXPECT_GT(tooLong, 50U);  // half as many where pointers, and so the frames on the stack, are half as large
#endif
}

}  // namespace

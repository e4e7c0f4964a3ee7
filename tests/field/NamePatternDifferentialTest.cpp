// Name patterns compared with the plain engine of the standard library, and on names that are too much for it.
#include "NamePattern.h"

#include "RegexOutcome.h"
#include "RunOnStack.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <ostream>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using testsupport::GuardedOutcome;
using testsupport::kHasStepwise;
using testsupport::kNameSyntax;
using testsupport::NamePatternOutcome;
using testsupport::RandomBelow;
using testsupport::RegexOutcome;
using testsupport::RegexOutcomeOf;
using testsupport::RunOnSmallStack;
using testsupport::RunOnStack;
using vif::CGuardedIterator;
using vif::MatchBudget;

constexpr std::size_t kLong = 200'000;

// Long names

struct LongNameCase {
  const char* pattern;
  const char* end;  // of the name, behind 200,000 times "a"
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

TEST_P(LongNameWithReference, EndsInTheAnswerOrForWantOfStackOrTime) {
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

TEST(LongNames, MayFollowShortOnesAndComeBeforeThem) {
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

/// Makes expressions from a grammar: sequences of literals, classes, assertions and groups, some of them quantified.
class CPatternGenerator {
 public:
  explicit CPatternGenerator(bool withReferences) : m_withReferences(withReferences) {}

  std::size_t Below(std::size_t bound) { return RandomBelow(m_random, bound); }

  std::string Pattern() {
    m_groups = 0;
    m_closedGroups.clear();
    return Alternatives(2);
  }

  std::string Alternatives(int depth) {
    std::string text = Sequence(depth);
    for (std::size_t more = Below(4); more > 2; --more) text.append("|").append(Sequence(depth));
    return text;
  }

  std::string Name(std::size_t longest, std::string_view characters) {
    std::string name;
    for (std::size_t length = Below(longest + 1); length > 0; --length) name += characters[Below(characters.size())];
    return name;
  }

 private:
  template <std::size_t N>
  const char* OneOf(const char* const (&texts)[N]) {
    return texts[Below(N)];
  }

  std::string Sequence(int depth) {
    std::string text;
    for (std::size_t terms = Below(4); terms > 0; --terms) text += Term(depth);
    return text;
  }

  std::string Term(int depth) {
    static constexpr const char* assertions[] = {"^", "$", "\\b", "\\B"};
    static constexpr const char* quantifiers[] = {"*", "+", "?", "*?", "+?", "??", "{2}", "{1,2}", "{0,1}", "{1,}"};
    if (Below(10) == 0) return OneOf(assertions);
    if (depth > 0 && Below(10) == 0) return (Below(2) == 0 ? "(?=" : "(?!") + Alternatives(depth - 1) + ")";
    std::string text = Atom(depth);
    if (Below(3) == 0) text += OneOf(quantifiers);
    return text;
  }

  std::string Atom(int depth) {
    static constexpr const char* atoms[] = {"a",    "b",      "A",       "B",           "1",   "_",    ".",
                                            ".",    "\\d",    "\\D",     "\\w",         "\\W", "\\s",  "[ab]",
                                            "[^a]", "[A-C1]", "[^\\d_]", "[[:alpha:]]", "\\.", "\\x61"};
    if (depth > 0 && Below(3) == 0) {
      if (Below(2) == 0) return "(?:" + Alternatives(depth - 1) + ")";
      const std::size_t number = ++m_groups;
      const std::string content = Alternatives(depth - 1);
      m_closedGroups.push_back(number);
      return std::string("(") + content + ")";
    }
    if (m_withReferences && !m_closedGroups.empty() && Below(4) == 0) {
      return std::string("(?:\\") + std::to_string(m_closedGroups[Below(m_closedGroups.size())]) + ")";
    }
    return OneOf(atoms);
  }

  std::mt19937_64 m_random = testsupport::SeededGenerator();
  bool m_withReferences;
  std::size_t m_groups = 0;                 // that have been opened
  std::vector<std::size_t> m_closedGroups;  // their numbers; only these may be referred to
};

/// What the plain engine answers when it may use any amount of stack; nothing when it takes too many steps.
std::optional<bool> PlainAnswer(const std::regex& expression, const std::string& text) {
  MatchBudget budget;
  budget.stepsLeft = 200'000;
  const CGuardedIterator<char> first(text.data(), budget);
  const CGuardedIterator<char> last(text.data() + text.size(), budget);
  return RegexOutcomeOf([&] { return std::regex_match(first, last, expression); }).answer;
}

constexpr std::string_view kNameCharacters = "aaabbAB1_. ";

/// Compares `matches`, which is made from each pattern and asked with names, with the plain engine.
template <typename MakeMatches>
void ExpectAgreementWithPlainEngine(CPatternGenerator& generator, const MakeMatches& makeMatches) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::size_t fitting = 0;
  for (int i = 0; i < 4000; ++i) {
    const std::string text = generator.Pattern();
    if (text.empty()) continue;
    const std::regex expression(text, kNameSyntax);
    auto matches = makeMatches(text);
    for (int j = 0; j < 12; ++j) {
      const std::string name = generator.Name(7, kNameCharacters);
      if (!PlainAnswer(expression, name)) continue;
      const bool expected = std::regex_match(name, expression);
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
  if (testsupport::kIsThreadSanitized) GTEST_SKIP() << "ThreadSanitizer keeps every deep call stack for good.";
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
  EXPECT_GT(tooLong, 100U);
#endif
}

}  // namespace

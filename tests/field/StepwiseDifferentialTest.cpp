// The stepwise engine against the recursive one, on wide text and with captures, which field definitions need.
#include "Compiler.h"
#include "RegexGrammar.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <optional>
#include <random>
#include <regex>
#include <string>
#include <vector>

// No other standard library has two engines.
#if defined(__GLIBCXX__)

namespace {

using testsupport::RandomBelow;

/// The texts of the groups; nothing for groups that did not participate.
std::vector<std::optional<std::wstring>> CapturesOf(const std::wsmatch& match) {
  std::vector<std::optional<std::wstring>> captures;
  for (const auto& group : match) captures.push_back(group.matched ? std::make_optional(group.str()) : std::nullopt);
  return captures;
}

struct Answers {
  std::wsmatch recursive;
  std::wsmatch stepwise;
  bool fits = false;    // according to the recursive engine
  bool agrees = false;  // whether the other one agrees
};

void Ask(const std::wregex& expression, const std::wstring& name, Answers& answers) {
  answers.fits = std::regex_match(name, answers.recursive, expression);
  answers.agrees = answers.fits == vif::StepwiseRegexMatch(name.cbegin(), name.cend(), answers.stepwise, expression);
}

TEST(StepwiseEngine, AnswersAsTheRecursiveOneDoes) {
  SCOPED_TRACE(testsupport::SeedMessage());
  testsupport::CPatternGenerator generator(true);
  Answers answers;
  std::size_t fitting = 0;
  for (int i = 0; i < 6000; ++i) {
    const std::string pattern = generator.Pattern();
    const std::wregex expression(std::wstring(pattern.begin(), pattern.end()));
    for (int j = 0; j < 12; ++j) {
      const std::string text = generator.Name(7, "aaabbAB1_. ");
      const std::wstring name(text.begin(), text.end());
      Ask(expression, name, answers);
      ASSERT_TRUE(answers.agrees) << pattern << " on " << text;
      fitting += answers.fits ? 1U : 0U;
    }
  }
  EXPECT_GT(fitting, 1000U);
}

// Captures of a repeated group that may match nothing are left out: there the two occasionally differ.
TEST(StepwiseEngine, CapturesWhatTheRecursiveOneDoes) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  constexpr const wchar_t* pieces[] = {L"a",        L"b",         L"_",        L"1",       L"(1*)",   L"(1*?)",
                                       L"([0-9]+)", L"(a|ab)",    L"(ab|a)",   L"(b|)",    L"(|b)",   L"(.*)",
                                       L"(.*?)",    L"(a)?",      L"(a)??",    L"(?:a|b)", L"(a|b)*", L"(ab|1)+",
                                       L"(_)*?",    L"([a-b]+?)", L"((a)|(b))"};
  Answers answers;
  std::size_t fitting = 0;
  for (int i = 0; i < 20'000; ++i) {
    std::wstring pattern;
    for (std::size_t n = 1 + RandomBelow(generator, 6); n > 0; --n)
      pattern += pieces[RandomBelow(generator, std::size(pieces))];
    const std::wregex expression(L"^" + pattern + L"$");
    for (int j = 0; j < 8; ++j) {
      std::wstring name(RandomBelow(generator, 8), L' ');
      for (wchar_t& c : name) c = L"aabb1_"[RandomBelow(generator, 6)];
      Ask(expression, name, answers);
      ASSERT_TRUE(answers.agrees);
      if (!answers.fits) continue;
      ++fitting;
      ASSERT_EQ(CapturesOf(answers.stepwise), CapturesOf(answers.recursive))
          << testing::PrintToString(pattern) << " on " << testing::PrintToString(name);
    }
  }
  EXPECT_GT(fitting, 10'000U);
}

}  // namespace

#endif

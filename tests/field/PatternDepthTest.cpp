#include "PatternDepth.h"

#include "RandomExpression.h"
#include "StackSpace.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <locale>
#include <optional>
#include <random>
#include <regex>
#include <string>
#include <string_view>

namespace {

using vif::CostOf;

/// What the pattern adds to the depth of the empty one.
std::size_t Depth(std::string_view pattern) { return CostOf(pattern).depth - CostOf("").depth; }

/// What the pattern adds to the joints of the empty one.
std::size_t Joints(std::string_view pattern) { return CostOf(pattern).joints - CostOf("").joints; }

std::string Repeated(std::string_view text, std::size_t count) {
  std::string repeated;
  for (; count > 0; --count) repeated += text;
  return repeated;
}

/// The pattern in that many groups, each closed by `close`.
std::string Nested(std::string_view open, std::string_view pattern, std::string_view close, std::size_t count) {
  return Repeated(open, count) + std::string(pattern) + Repeated(close, count);
}

TEST(PatternDepth, CountsThePlainCharacters) {
  EXPECT_EQ(Depth("a"), 1U);
  EXPECT_EQ(Depth("Src_PDO_Voltage"), 15U);
  EXPECT_EQ(Depth(std::string(1234, 'x')), 1234U);
  EXPECT_EQ(Depth("\xC3\xA4"), 2U);
}

#if defined(__GLIBCXX__)

TEST(PatternDepth, CountsTermsOfOneCharacterAsOne) {
  for (const char* term : {".", "^", "$", "\\d", "\\.", "\\\\", "\\(", "\\)", "\\[", "\\{", "\\|", "\\*", "\\b"}) {
    EXPECT_EQ(Depth(term), 1U) << term;
    EXPECT_EQ(Depth(std::string("a") + term + "b"), 3U) << term;
  }
}

TEST(PatternDepth, CountsABracketExpressionAsOne) {
  for (const char* brackets : {"[a]", "[abc]", "[^a-z]", "[]", "[a|b]", "[(((]", "[)))]", "[a{9}]", "[*+?]", "[\\]]",
                               "[a\\]b]", "[\\\\]", "[[]"}) {
    EXPECT_EQ(Depth(brackets), 1U) << brackets;
    EXPECT_EQ(Depth(std::string("x") + brackets + "yz"), 4U) << brackets;
  }
}

TEST(PatternDepth, CountsATermOnceHoweverOftenItIsRepeated) {
  for (const char* quantified : {"a*", "a+", "a?", "a*?", "[ab]*", "\\d+", "a{50}", "a{2,70}", "a{3,}", "a{3}{4}"}) {
    EXPECT_EQ(Depth(quantified), 1U) << quantified;
    EXPECT_EQ(Depth(std::string("x") + quantified + "y"), 3U) << quantified;
  }
  EXPECT_EQ(Depth("((a){30}){40}"), Depth("((a))"));
}

TEST(PatternDepth, CountsAControlCharacterAsOne) {
  EXPECT_EQ(Depth("\\c["), 1U);
  EXPECT_EQ(Depth("\\c[(a)(a)"), 1 + 2 * Depth("(a)"));
  EXPECT_EQ(Depth("\\c(a"), 2U);
  EXPECT_EQ(Depth("(\\c)a)"), Depth("(ba)"));
}

TEST(PatternDepth, CountsTheDeepestAlternative) {
  EXPECT_EQ(Depth("aaaaa|b"), Depth("aaaa|b") + 1);
  EXPECT_EQ(Depth("aaaa|b"), Depth("aaaa|bbbb"));
  EXPECT_EQ(Depth("aaaa|b"), Depth("b|aaaa"));
  EXPECT_EQ(Depth("(aaaa|b)"), Depth("(b|aaaa)"));
  EXPECT_GE(Depth("aaaa|b"), 4U);
  EXPECT_LT(Depth("aaaaaaaa|bbbbbbbb"), Depth("aaaaaaaabbbbbbbb"));
}

TEST(PatternDepth, DoesNotGrowWithTheAlternatives) {
  EXPECT_EQ(Depth(std::string("a") + Repeated("|b", 100)), Depth("a|b"));
  EXPECT_EQ(Depth(Repeated("|", 100)), Depth("|"));
}

#else

TEST(PatternDepth, CountsEveryCharacter) {
  for (const char* pattern : {"a.b", "[abc]", "a{50}", "\\c[", "aaaa|bbbb", "||||"}) {
    EXPECT_EQ(Depth(pattern), std::string_view(pattern).size()) << pattern;
  }
}

#endif

TEST(PatternDepth, CountsAGroupAsMoreThanItsContent) {
  EXPECT_GT(Depth("(a)"), Depth("a"));
  EXPECT_GT(Depth("()"), 0U);
  EXPECT_GT(Depth("(?:a)"), Depth("a"));
  EXPECT_GT(Depth("(?=a)"), Depth("a"));
  EXPECT_GT(Depth("(?!a)"), Depth("a"));
  EXPECT_EQ(Depth("(aaaa)"), Depth("(a)") + 3);
  EXPECT_EQ(Depth("x(a)y"), Depth("(a)") + 2);
}

TEST(PatternDepth, AddsUpAdjacentAndNestedGroups) {
  EXPECT_EQ(Depth("(a)(a)(a)"), 3 * Depth("(a)"));
  const std::size_t group = Depth("()");
  EXPECT_EQ(Depth("((a))"), Depth("(a)") + group);
  EXPECT_EQ(Depth(Nested("(", "a", ")", 100)), 100 * group + 1);
}

TEST(PatternJoints, CountWhatIsJoined) {
  EXPECT_EQ(Joints("abc"), 0U);
  EXPECT_EQ(Joints("a|b"), 2U);
  EXPECT_EQ(Joints(Repeated("|a", 100)), 200U);
  EXPECT_GT(Joints("()"), 0U);
  EXPECT_GT(Joints("a?"), 0U);
  EXPECT_EQ(Joints(Repeated("()", 100)), 100 * Joints("()"));
}

TEST(PatternJoints, CountAsOftenAsBracesRepeatThem) {
  EXPECT_GE(Joints("(){50}"), 50 * Joints("()"));
  EXPECT_LE(Joints("(){90}"), 95 * Joints("()"));
  EXPECT_GE(Joints("(){2,50}"), 50 * Joints("()"));
  EXPECT_GE(Joints("(){50,2}"), 50 * Joints("()"));
  EXPECT_GE(Joints("(){30}{40}"), 1200 * Joints("()"));
  EXPECT_GE(Joints("((){30}){40}"), 1200 * Joints("()"));
  EXPECT_GE(Joints("a{0}{40}"), 80U);
  EXPECT_LT(Joints("[0-9]{2000}"), 10U);
  EXPECT_LT(Joints(".{0,2000}"), 10U);
}

TEST(PatternJoints, SaturateInsteadOfOverflowing) {
  for (const char* pattern :
       {"(){99999999999999999999999999}", "((){999999999}){999999999}", "(((((){99999}){99999}){99999}){99999}){99999}",
        "(){18446744073709551616}", "(){4294967296}{4294967296}{4294967296}{4294967296}"}) {
    EXPECT_GT(Joints(pattern), vif::kMostJoints) << pattern;
  }
}

TEST(PatternDepth, IsFiniteForInvalidExpressions) {
  const char* const patterns[] = {"(",   "((",  ")",  "))",  "a)",   "(a",    "(a|",    "|)", "[",  "[a",
                                  "[\\", "[^",  "{",  "a{",  "}",    "]",     "{5",     "*",  "**", "?",
                                  "(?",  "(*",  "\\", "a\\", "a{5,", "{,}",   "|",      "||", "(|", "a{,}",
                                  "a{}", "(])", "[)", "[(",  "{{{{", "a{-1}", "(?<a>b)"};
  for (const char* pattern : patterns) {
    EXPECT_GE(CostOf(pattern).depth, CostOf("").depth) << pattern;
    EXPECT_LT(CostOf(pattern).depth, CostOf("").depth + 100) << pattern;
  }
}

TEST(PatternDepth, IncludesUnclosedGroups) {
  EXPECT_GT(Depth(std::string(200'000, '(')), 200'000U);
  EXPECT_GT(Depth(Repeated("(a|", 200'000)), 200'000U);
  EXPECT_GT(Depth(Repeated("(?:", 200'000)), 200'000U);
}

#if defined(__GLIBCXX__)

/// Records the depth of the stack whenever a plain character is compiled.
class CDepthProbe : public std::ctype<char> {
 public:
  mutable std::uintptr_t lowest = std::numeric_limits<std::uintptr_t>::max();

 protected:
  char do_tolower(char c) const override {
    lowest = std::min(lowest, VIF_FRAME_ADDRESS());
    return std::ctype<char>::do_tolower(c);
  }
};

/// How many bytes of stack compiling the pattern takes; nothing if it is not a valid regular expression.
std::optional<std::uintptr_t> BytesToCompile(const std::string& pattern) {
  auto* const probe = new CDepthProbe;  // owned by the locale
  std::regex expression;
  expression.imbue(std::locale(std::locale::classic(), probe));
  const std::uintptr_t here = VIF_FRAME_ADDRESS();
  try {
    expression.assign(pattern, std::regex_constants::ECMAScript | std::regex_constants::icase);
  } catch (const std::regex_error&) {
    return std::nullopt;
  }
  return probe->lowest < here ? here - probe->lowest : 0;
}

TEST(PatternDepthDifferential, IsNeverLessThanWhatCompilingTakes) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  constexpr std::uintptr_t lastCalls = vif::kStackReserve / 4;
  constexpr const char* wrappings[][2] = {{"(", ")"}, {"(?:x", ")"}, {"(?=", "y)*"}, {"(b|", ")?"}, {"(", "|b){2}"}};
  std::size_t compiled = 0;
  for (int i = 0; i < 2000; ++i) {
    std::string pattern = randomexpression::Pattern(generator);
    for (std::size_t n = testsupport::RandomBelow(generator, 4); n > 0; --n) {
      const auto& [open, close] = wrappings[testsupport::RandomBelow(generator, std::size(wrappings))];
      const std::string part = Repeated(pattern, 1 + testsupport::RandomBelow(generator, 12));
      pattern = open + part + close;
    }
    pattern += "a";
    if (CostOf(pattern).depth > 5000) continue;
    const auto bytes = BytesToCompile(pattern);
    if (!bytes) continue;
    ++compiled;
    ASSERT_LE(*bytes, lastCalls + CostOf(pattern).depth * vif::kStackPerDepth) << pattern;
  }
  EXPECT_GT(compiled, 500U);
}

#endif

}  // namespace

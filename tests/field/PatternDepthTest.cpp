#include "PatternDepth.h"

#include "KnownFields.h"
#include "NamePattern.h"
#include "RunOnStack.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <regex>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace {

using testsupport::RunOnSmallStack;
using vif::kMaxPatternDepth;
using vif::PatternDepth;

/// What the pattern adds to the depth of the empty one.
std::size_t Depth(std::string_view pattern) { return PatternDepth(pattern) - PatternDepth(""); }

std::string Repeated(std::string_view text, std::size_t count) {
  std::string repeated;
  for (; count > 0; --count) repeated += text;
  return repeated;
}

/// The pattern in so many groups, each closed by `close`.
std::string Nested(std::string_view open, std::string_view pattern, std::string_view close, std::size_t count) {
  return Repeated(open, count) + std::string(pattern) + Repeated(close, count);
}

TEST(PatternDepth, CountsThePlainCharacters) {
  EXPECT_EQ(Depth("a"), 1U);
  EXPECT_EQ(Depth("Src_PDO_Voltage"), 15U);
  EXPECT_EQ(Depth(std::string(1234, 'x')), 1234U);
  EXPECT_EQ(Depth("\xC3\xA4"), 2U);
}

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

TEST(PatternDepth, CountsAQuantifiedTermAsMore) {
  for (const char* quantified : {"a*", "a+", "a?", "a*?", "[ab]*", "\\d+"})
    EXPECT_GT(Depth(quantified), 1U) << quantified;
  EXPECT_EQ(Depth("xa*y"), Depth("a*") + 2);
}

TEST(PatternDepth, CountsEveryQuantifierAlike) {
  EXPECT_EQ(Depth("a+"), Depth("a*"));
  EXPECT_EQ(Depth("a?"), Depth("a*"));
}

TEST(PatternDepth, CountsAGroupAsMoreThanItsContent) {
  EXPECT_GT(Depth("(a)"), Depth("a"));
  EXPECT_GT(Depth("()"), 0U);
  EXPECT_GT(Depth("(?:a)"), Depth("a"));
  EXPECT_GT(Depth("(?=a)"), Depth("a"));
  EXPECT_GT(Depth("(?!a)"), Depth("a"));
  EXPECT_EQ(Depth("(aaaa)"), Depth("(a)") + 3);
  EXPECT_EQ(Depth("x(a)y"), Depth("(a)") + 2);
}

TEST(PatternDepth, AddsUpGroupsBesideAndInsideEachOther) {
  EXPECT_EQ(Depth("(a)(a)(a)"), 3 * Depth("(a)"));
  const std::size_t group = Depth("()");
  EXPECT_EQ(Depth("((a))"), Depth("(a)") + group);
  EXPECT_EQ(Depth(Nested("(", "a", ")", 100)), 100 * group + 1);
}

TEST(PatternDepth, CountsTheDeepestAlternative) {
  EXPECT_EQ(Depth("aaaaa|b"), Depth("aaaa|b") + 1);
  EXPECT_EQ(Depth("aaaa|b"), Depth("aaaa|bbbb"));
  EXPECT_EQ(Depth("aaaa|b"), Depth("b|aaaa"));
  EXPECT_EQ(Depth("(aaaa|b)"), Depth("(b|aaaa)"));
  EXPECT_GE(Depth("aaaa|b"), 4U);
  EXPECT_LT(Depth("aaaaaaaa|bbbbbbbb"), Depth("aaaaaaaabbbbbbbb"));
}

TEST(PatternDepth, CountsEveryAlternative) {
  const std::size_t one = Depth("a|b") - Depth("a");
  EXPECT_GT(one, 0U);
  EXPECT_EQ(Depth("a|b|c"), Depth("a") + 2 * one);
  EXPECT_EQ(Depth(std::string("a") + Repeated("|b", 100)), Depth("a") + 100 * one);
  EXPECT_EQ(Depth(Repeated("|", 100)), 100 * one);
}

TEST(PatternDepth, CountsARepetitionAsOftenAsItsBracesSay) {
  // The braces themselves may count for as much as they are long.
  const auto isOnceAsOften = [](std::size_t depth, std::size_t expected) {
    return depth >= expected && depth <= expected + 6;
  };
  EXPECT_PRED2(isOnceAsOften, Depth("a{50}"), 50U);
  EXPECT_PRED2(isOnceAsOften, Depth("a{20,70}"), 70U);
  EXPECT_PRED2(isOnceAsOften, Depth("a{30,}"), 30U);
  EXPECT_PRED2(isOnceAsOften, Depth("xya{50}z"), 53U);
  EXPECT_PRED2(isOnceAsOften, Depth("[ab]{50}"), 50U);
  EXPECT_PRED2(isOnceAsOften, Depth("\\d{50}"), 50U);
  EXPECT_PRED2(isOnceAsOften, Depth("(ab){30}"), 30 * Depth("(ab)"));
  EXPECT_PRED2(isOnceAsOften, Depth("((a){30}){40}"), 40 * Depth("((a){30})"));
  EXPECT_PRED2(isOnceAsOften, Depth("a{0}"), 1U);
}

TEST(PatternDepth, IsNotMultipliedByBracesThatAskForOne) {
  EXPECT_LT(Depth(Nested("(", "a", "){1}", 10)), 2 * Depth(Nested("(", "a", ")", 10)));
}

TEST(PatternDepth, CountsEveryRepetitionOfARepetition) {
  EXPECT_GT(PatternDepth("a{30}{30}"), 900U);
  EXPECT_GT(PatternDepth("(a{30}){30}"), 900U);
}

TEST(PatternDepth, MultipliesRepetitionsInARow) {
  EXPECT_EQ(Depth("a{3}{4}{5}"), 60U);
  EXPECT_EQ(Depth("(ab){3}{4}"), 12 * Depth("(ab)"));
}

TEST(PatternDepth, OfBracesGrowsNoFurtherThanNumbersDo) {
  for (const char* pattern :
       {"a{99999999999999999999999999}", "(a{999999999}){999999999}", "((((a{99999}){99999}){99999}){99999}){99999}",
        "a{18446744073709551616}", "a{4294967296}{4294967296}{4294967296}{4294967296}"}) {
    EXPECT_GT(PatternDepth(pattern), kMaxPatternDepth) << pattern;
  }
}

TEST(PatternDepth, IsFiniteForWhatIsNoExpression) {
  const char* const patterns[] = {"(",   "((",  ")",  "))",  "a)",   "(a",    "(a|",    "|)", "[",  "[a",
                                  "[\\", "[^",  "{",  "a{",  "}",    "]",     "{5",     "*",  "**", "?",
                                  "(?",  "(*",  "\\", "a\\", "a{5,", "{,}",   "|",      "||", "(|", "a{,}",
                                  "a{}", "(])", "[)", "[(",  "{{{{", "a{-1}", "(?<a>b)"};
  for (const char* pattern : patterns) {
    EXPECT_GE(PatternDepth(pattern), PatternDepth("")) << pattern;
    EXPECT_LT(PatternDepth(pattern), PatternDepth("") + 100) << pattern;
  }
}

TEST(PatternDepth, OfGroupsThatAreNotClosedCounts) {
  EXPECT_GT(PatternDepth(std::string(200'000, '(')), kMaxPatternDepth);
  EXPECT_GT(PatternDepth(Repeated("(a|", 200'000)), kMaxPatternDepth);
  EXPECT_GT(PatternDepth(Repeated("(?:", 200'000)), kMaxPatternDepth);
}

// The limit

/// The known field names with the index as their indexes.
std::vector<std::string> FieldNames(const std::string& index) {
  std::vector<std::string> names;
  for (const vif::KnownField& field : vif::KnownFields()) {
    std::string name;
    for (const char c : field.spelling) name += c == vif::kIndexMark ? index : std::string(1, c);
    names.push_back(name);
  }
  return names;
}

std::string Alternation(const std::vector<std::string>& names) {
  std::string pattern = "(";
  for (const std::string& name : names) pattern += name + "|";
  pattern.back() = ')';
  return pattern;
}

TEST(MaxPatternDepth, AdmitsAlternationsOfFiveHundredFieldNames) {
  std::vector<std::string> names = FieldNames("1");
  for (const std::string& name : FieldNames("2")) names.push_back(name);
  ASSERT_GE(names.size(), 500U);
  names.resize(500);
  const std::string pattern = Alternation(names);
  EXPECT_LE(PatternDepth(pattern), kMaxPatternDepth);
  RunOnSmallStack([&] {
    vif::CNamePattern compiled(pattern.c_str());
    for (const std::string& name : names) EXPECT_TRUE(compiled.Matches(name.c_str())) << name;
    EXPECT_FALSE(compiled.Matches("Src_PDO"));
    EXPECT_FALSE(compiled.Matches(""));
  });
}

TEST(MaxPatternDepth, AdmitsAlternationsOfFiveHundredLongNames) {
  std::vector<std::string> names;
  for (std::size_t i = 0; i < 500; ++i) names.push_back(std::string(57, 'N') + std::to_string(100 + i));
  const std::string pattern = Alternation(names);
  RunOnSmallStack([&] {
    vif::CNamePattern compiled(pattern.c_str());
    EXPECT_TRUE(compiled.Matches(names.front().c_str()));
    EXPECT_TRUE(compiled.Matches(names.back().c_str()));
    EXPECT_FALSE(compiled.Matches(std::string(60, 'N').c_str()));
  });
}

TEST(MaxPatternDepth, AdmitsPatternsOfTheUsualKind) {
  for (const char* pattern : {"Src_PDO_.*", "(Src|Snk)_PDO_(Voltage|Max_Current)", "SOP_SVID[0-9]*_Mode[0-9]*",
                              "[A-Z][a-z]{1,100}", "(?!Src_).*_(Min|Max)(_.*)?", "(\\w+_){1,10}\\d*"}) {
    EXPECT_LE(PatternDepth(pattern), kMaxPatternDepth) << pattern;
    EXPECT_NO_THROW(vif::CNamePattern{pattern}) << pattern;
  }
}

/// The error code with which a pattern is rejected; nothing when it is made.
std::optional<std::regex_constants::error_type> ErrorOf(const std::string& pattern) {
  try {
    const vif::CNamePattern compiled(pattern.c_str());
    return std::nullopt;
  } catch (const std::regex_error& error) {
    return error.code();
  }
}

TEST(HostilePattern, IsRejectedForWantOfStack) {
  const std::string patterns[] = {std::string(200'000, '('),
                                  Nested("(", "a", ")", 200'000),
                                  Nested("(", "a", ")*", 200'000),
                                  Nested("(?:", "a", ")", 200'000),
                                  Nested("(?=", "a", ")", 200'000),
                                  Nested("(a|", "b", ")", 200'000),
                                  std::string(1'000'000, 'a') + ".",
                                  std::string(".") + std::string(1'000'000, 'a'),
                                  std::string(1'000'000, '.'),
                                  std::string(1'000'000, '^'),
                                  Repeated("a*", 200'000),
                                  Repeated("[ab]", 200'000),
                                  Repeated("\\d", 200'000),
                                  Repeated("(a)", 200'000),
                                  Repeated("a|", 200'000),
                                  "(a*){30000}",
                                  "(a{1000}){1000}",
                                  "((((((a{9}){9}){9}){9}){9}){9}){9}",
                                  "a{1000000}",
                                  "(){100000}",
                                  "(^){100000}",
                                  "(^){40}{40}{10}",
                                  "(a?){40}{40}{8}",
                                  "(){40}{40}{12}"};
  RunOnSmallStack([&] {
    for (const std::string& pattern : patterns) {
      EXPECT_EQ(ErrorOf(pattern), std::regex_constants::error_stack) << pattern.substr(0, 40);
    }
  });
}

TEST(HostilePattern, ThatIsNoExpressionIsRejected) {
  const std::string patterns[] = {std::string(200'000, ')'),
                                  std::string(200'000, '['),
                                  std::string(200'000, '*'),
                                  std::string(200'000, '\\') + "\\",
                                  std::string(1'000'000, '{'),
                                  std::string("a") + std::string(1'000'000, '{'),
                                  Repeated("a{1,2", 200'000),
                                  std::string("[") + std::string(1'000'000, 'a'),
                                  std::string("(") + std::string(1000, '?'),
                                  std::string("a{") + std::string(1'000'000, '9')};
  RunOnSmallStack([&] {
    for (const std::string& pattern : patterns) EXPECT_TRUE(ErrorOf(pattern).has_value()) << pattern.substr(0, 40);
  });
}

TEST(HostilePattern, OfPlainTextIsNoneAndOfAnyLength) {
  const std::string pattern(1'000'000, 'a');
  RunOnSmallStack([&] {
    vif::CNamePattern compiled(pattern.c_str());
    EXPECT_TRUE(compiled.Matches(pattern.c_str()));
    EXPECT_FALSE(compiled.Matches("a"));
  });
}

/// The shape repeated as often as the limit admits.
std::string AtTheLimit(std::string_view shape) {
  std::string pattern(shape);
  while (PatternDepth(pattern + std::string(shape)) <= kMaxPatternDepth) pattern += shape;
  return pattern;
}

/// The shape around itself as often as the limit admits.
std::string NestedAtTheLimit(std::string_view open, std::string_view close) {
  std::size_t count = 1;
  while (PatternDepth(Nested(open, "a", close, count + 1)) <= kMaxPatternDepth) ++count;
  return Nested(open, "a", close, count);
}

/// Compiles the pattern, which the limit admits, and tries it on names for which it goes to the end of either.
void ExpectEnoughStackFor(const std::string& pattern) {
  SCOPED_TRACE(pattern.substr(0, 40));
  ASSERT_LE(PatternDepth(pattern), kMaxPatternDepth);
  ASSERT_GT(PatternDepth(pattern), kMaxPatternDepth / 2);
  RunOnSmallStack([&] {
    vif::CNamePattern compiled(pattern.c_str());
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, std::size_t{1000}}) {
      const std::string name(length, 'a');
      try {
        // The answer is a matter of other tests; here it is whether there is one.
        const bool once = compiled.Matches(name.c_str());
        EXPECT_EQ(compiled.Matches(name.c_str()), once);
      } catch (const std::regex_error& error) {
        EXPECT_TRUE(error.code() == std::regex_constants::error_stack ||
                    error.code() == std::regex_constants::error_complexity)
            << error.what();
      }
    }
  });
}

class PatternAtTheLimit : public testing::TestWithParam<const char*> {};

TEST_P(PatternAtTheLimit, NeedsNoMoreStackThanThereIs) { ExpectEnoughStackFor(AtTheLimit(GetParam())); }

INSTANTIATE_TEST_SUITE_P(OfRepeated, PatternAtTheLimit,
                         testing::Values(".", "^", "$", "\\b", "\\B", "\\d", "[ab]", "a?", "a??", ".?", "a*", "a+",
                                         "(a)", "()", "(a)?", "(a?)", "(^)", "(?:a)", "(?:a)?", "(?=a)", "(?!b)",
                                         "(?=a*)", "(a|b)", "(|a)", "(a|b)?", ".|", "ab|.|", "(a){3}", "a{3}.",
                                         "(a?){3}", "(^){3}", "(){3}", "(a{2}){2}", "a{1,3}.", "(b)?\\1", "(^)?", "()?",
                                         "(|^)", "(^|)", "(^)*", "(^)+", "(?:)?", "(a*)*", "(a?)*?", "a{2}{3}",
                                         "(^){2}{3}"));

class NestedPatternAtTheLimit : public testing::TestWithParam<std::pair<const char*, const char*>> {};

TEST_P(NestedPatternAtTheLimit, NeedsNoMoreStackThanThereIs) {
  ExpectEnoughStackFor(NestedAtTheLimit(GetParam().first, GetParam().second));
}

INSTANTIATE_TEST_SUITE_P(Of, NestedPatternAtTheLimit,
                         testing::Values(std::pair("(", ")"), std::pair("(?:", ")"), std::pair("(?=", ")"),
                                         std::pair("(a|", ")"), std::pair("(", "|a)"), std::pair("(", ")?"),
                                         std::pair("(?:", ")?"), std::pair("(a", ")"), std::pair("(", ")*"),
                                         std::pair("(?=(", ")*)"), std::pair("(", "){2}"), std::pair("(?:a?", ")+"),
                                         std::pair("(", "a)")));

}  // namespace

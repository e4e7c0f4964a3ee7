#include "NamePattern.h"

#include "Compiler.h"
#include "RandomExpression.h"
#include "ReferenceNames.h"
#include "support/Latin1Locale.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <locale>
#include <optional>
#include <random>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace std::string_literals;
using testsupport::CScopedGlobalLocale;
using testsupport::Latin1Locale;
using testsupport::RandomBelow;

bool Matches(const std::string& pattern, const std::string& name) {
  return vif::CNamePattern(pattern.c_str()).Matches(name.c_str());
}

/// The reference for a pattern; nothing if it is not a valid regular expression.
std::optional<std::regex> Expression(const std::string& pattern) {
  return randomexpression::Compiled(pattern, std::regex_constants::ECMAScript | std::regex_constants::icase);
}

std::optional<vif::CNamePattern> NamePattern(const std::string& pattern) {
  try {
    return std::make_optional<vif::CNamePattern>(pattern.c_str());
  } catch (const std::regex_error&) {
    return std::nullopt;
  }
}

TEST(NamePattern, MatchesTheWholeName) {
  EXPECT_TRUE(Matches("Src_PDO", "Src_PDO"));
  EXPECT_FALSE(Matches("Src_PDO", "Src_PDO_Voltage"));
  EXPECT_FALSE(Matches("Src_PDO_Voltage", "Src_PDO"));
  EXPECT_FALSE(Matches("Src_PDO", ""));
  EXPECT_TRUE(Matches("Src_.*", "Src_PDO"));
  EXPECT_FALSE(Matches("Src_P.", "Src_PDO"));
}

TEST(NamePattern, IgnoresLetterCase) {
  EXPECT_TRUE(Matches("src_pdo", "SRC_PDO"));
  EXPECT_TRUE(Matches("SRC_PDO", "src_pdo"));
  EXPECT_TRUE(Matches("sRc_.d.", "SrC_PDO"));
  EXPECT_FALSE(Matches("src_pdo", "SRC_PDP"));
}

TEST(NamePattern, IsCompiledOnceForManyNames) {
  vif::CNamePattern pattern("(Src|Snk)_PDO");
  EXPECT_TRUE(pattern.Matches("Src_PDO"));
  EXPECT_FALSE(pattern.Matches("Sxx_PDO"));
  EXPECT_TRUE(pattern.Matches("Snk_PDO"));
}

TEST(NamePattern, ThrowsTheErrorOfAnInvalidExpressionOnConstruction) {
  for (const char* pattern : {"(", ")", "[", "*", "+", "?", "a{", "a{2,1}", "\\", "(?", "[[:none:]]"}) {
    EXPECT_THROW(vif::CNamePattern{pattern}, std::regex_error) << pattern;
  }
#if !defined(_LIBCPP_VERSION)  // for libc++, a range that contains nothing
  EXPECT_THROW(vif::CNamePattern{"[b-a]"}, std::regex_error);
#endif
}

TEST(NamePattern, RecognisesEverySpecialCharacter) {
  EXPECT_TRUE(Matches("^a", "a"));
  EXPECT_TRUE(Matches("a$", "a"));
  EXPECT_TRUE(Matches("\\x61", "a"));
  EXPECT_TRUE(Matches(".", "a"));
  EXPECT_TRUE(Matches("aa*", "a"));
  EXPECT_TRUE(Matches("a+", "aa"));
  EXPECT_TRUE(Matches("ab?", "a"));
  EXPECT_TRUE(Matches("(a)", "a"));
  EXPECT_TRUE(Matches("[ab]", "a"));
  EXPECT_TRUE(Matches("a{2}", "aa"));
  EXPECT_TRUE(Matches("a|b", "b"));
}

TEST(NamePattern, LetsAQuantifierApplyToThePlainCharacterBefore) {
  EXPECT_TRUE(Matches("Src_*", "src"));
  EXPECT_TRUE(Matches("Src_?.", "srcX"));
  EXPECT_TRUE(Matches("Src_{0,2}P", "srcp"));
  EXPECT_TRUE(Matches("S*", ""));
  EXPECT_TRUE(Matches("Src_+", "src__"));
  EXPECT_FALSE(Matches("Src_+", "src"));
  EXPECT_FALSE(Matches("Src_*", "sr"));
}

TEST(NamePattern, LetsEveryAlternativeBeginDifferently) {
  EXPECT_TRUE(Matches("Src_PDO|Snk_PDO", "snk_pdo"));
  EXPECT_TRUE(Matches("Src_PDO|.*", "Vendor_Name"));
  EXPECT_TRUE(Matches("S(rc|nk)_PDO", "snk_pdo"));
  EXPECT_FALSE(Matches("Src_PDO|Snk_PDO", "Sxk_PDO"));
}

TEST(NamePattern, ComparesPlainPatternsOfAnyLength) {
  const std::string pattern(200'000, 'a');
  EXPECT_TRUE(Matches(pattern, std::string(200'000, 'A')));
  EXPECT_FALSE(Matches(pattern, std::string(199'999, 'a') + "b"));
  EXPECT_FALSE(Matches(pattern, std::string(200'001, 'a')));
}

/// Builds a pattern from every byte and compares its answers on every byte.
void ExpectAgreementOnAllBytes() {
  for (int patternByte = 1; patternByte < 256; ++patternByte) {
    const std::string pattern(1, static_cast<char>(patternByte));
    const std::optional<std::regex> expression = Expression(pattern);
    std::optional<vif::CNamePattern> namePattern = NamePattern(pattern);
    ASSERT_EQ(namePattern.has_value(), expression.has_value()) << reference::Shown(pattern);
    if (!expression) continue;
    for (int nameByte = 1; nameByte < 256; ++nameByte) {
      const std::string name(1, static_cast<char>(nameByte));
      ASSERT_EQ(namePattern->Matches(name.c_str()), std::regex_match(name, *expression))
          << reference::Shown(pattern) << " on " << reference::Shown(name);
    }
  }
}

TEST(NamePattern, AgreesWithTheExpressionOnAllBytes) { ExpectAgreementOnAllBytes(); }

TEST(NamePattern, AgreesWithTheExpressionOnAllBytesInAnotherLocale) {
  const CScopedGlobalLocale latin1(Latin1Locale());
  ExpectAgreementOnAllBytes();
}

TEST(NamePattern, IgnoresLetterCaseAccordingToTheGlobalLocale) {
  EXPECT_FALSE(Matches("\xC9", "\xE9"));
  EXPECT_FALSE(Matches("\xC9.", "\xE9."));
  const CScopedGlobalLocale latin1(Latin1Locale());
  EXPECT_TRUE(Matches("\xC9", "\xE9"));
  EXPECT_TRUE(Matches("\xE9", "\xC9"));
  EXPECT_TRUE(Matches("\xC9.", "\xE9."));
}

TEST(NamePattern, KeepsTheLocaleOfItsConstruction) {
  for (const char* text : {"\xC9", "\xC9?"}) {
    vif::CNamePattern madeBefore(text);
    std::optional<vif::CNamePattern> madeWithin;
    {
      const CScopedGlobalLocale latin1(Latin1Locale());
      madeWithin.emplace(text);
      EXPECT_FALSE(madeBefore.Matches("\xE9"));
    }
    EXPECT_TRUE(madeWithin->Matches("\xE9"));
  }
}

/// Has NUL as the lower case of "q".
class CNulForQ : public std::ctype<char> {
 protected:
  char do_tolower(char c) const override { return c == 'q' ? '\0' : std::ctype<char>::do_tolower(c); }
  const char* do_tolower(char* begin, const char* end) const override {
    for (; begin != end; ++begin) *begin = do_tolower(*begin);
    return end;
  }
};

TEST(NamePattern, TreatsNoCharacterAsTheEndOfAName) {
  const CScopedGlobalLocale odd(std::locale(std::locale::classic(), new CNulForQ));
  EXPECT_TRUE(Matches("qa", "qA"));
  EXPECT_FALSE(Matches("q", ""));
  EXPECT_FALSE(Matches("qq", "q"));
  EXPECT_FALSE(Matches("q", "qq"));
  EXPECT_FALSE(Matches("q.*", ""));
}

/// One to twelve random bytes without NUL.
std::string RandomPlainText(std::mt19937_64& generator) {
  constexpr std::string_view usual = "abcXYZ019_-'\" #&,/:;<=>@`~!%\n";
  std::string text(1 + RandomBelow(generator, 12), ' ');
  for (char& c : text) {
    const size_t choice = RandomBelow(generator, usual.size() + 20);
    c = choice < usual.size() ? usual[choice] : static_cast<char>(1 + RandomBelow(generator, 255));
  }
  return text;
}

/// A name that is often close to the text: the same, in other letter case, or with one character changed.
std::string RandomNameNear(std::string text, std::mt19937_64& generator) {
  for (char& c : text) {
    if (RandomBelow(generator, 4) == 0) c = std::toupper(c, std::locale());
    if (RandomBelow(generator, 4) == 0) c = std::tolower(c, std::locale());
  }
  if (RandomBelow(generator, 3) == 0) text = reference::Changed(text, generator);
  std::erase(text, '\0');
  return text;
}

void ExpectAgreementOnPlainPatterns() {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  for (int i = 0; i < 5000; ++i) {
    const std::string pattern = RandomPlainText(generator);
    const std::optional<std::regex> expression = Expression(pattern);
    std::optional<vif::CNamePattern> namePattern = NamePattern(pattern);
    ASSERT_EQ(namePattern.has_value(), expression.has_value()) << reference::Shown(pattern);
    for (int j = 0; expression && j < 6; ++j) {
      const std::string name = RandomNameNear(pattern, generator);
      ASSERT_EQ(namePattern->Matches(name.c_str()), std::regex_match(name, *expression))
          << reference::Shown(pattern) << " on " << reference::Shown(name);
    }
  }
}

TEST(NamePattern, AgreesWithTheExpressionOnPlainPatterns) { ExpectAgreementOnPlainPatterns(); }

TEST(NamePattern, AgreesWithTheExpressionOnPlainPatternsInAnotherLocale) {
  const CScopedGlobalLocale latin1(Latin1Locale());
  ExpectAgreementOnPlainPatterns();
}

/// What a match of a long name may run out of: stack in libstdc++, steps in libc++.
constexpr auto kTooMuch =
    vif::kHasStepwiseEngine ? std::regex_constants::error_stack : std::regex_constants::error_complexity;

/// Compares on random expressions and names. With `lengthened`, the pattern first sees a name too long for the engine
/// that it starts with.
void ExpectAgreementOnExpressions(bool lengthened) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  const std::string longName(5000, 'a');
  for (int i = 0; i < 3000; ++i) {
    const std::string pattern = randomexpression::Pattern(generator);
    const std::optional<std::regex> expression = Expression(pattern);
    std::optional<vif::CNamePattern> namePattern = NamePattern(pattern);
    ASSERT_EQ(namePattern.has_value(), expression.has_value()) << reference::Shown(pattern);
    if (!expression) continue;
    if (lengthened) {
      try {
        namePattern->Matches(longName.c_str());
      } catch (const std::regex_error& error) {
        ASSERT_EQ(error.code(), kTooMuch) << reference::Shown(pattern);
      }
    }
    for (int j = 0; j < 8; ++j) {
      const std::string name = randomexpression::Subject(generator);
      ASSERT_EQ(namePattern->Matches(name.c_str()), std::regex_match(name, *expression))
          << reference::Shown(pattern) << " on " << reference::Shown(name);
    }
  }
}

TEST(NamePattern, AgreesWithTheExpressionOnExpressions) { ExpectAgreementOnExpressions(false); }

TEST(NamePattern, AgreesWithTheExpressionAfterALongName) { ExpectAgreementOnExpressions(true); }

TEST(NamePattern, AgreesWithTheExpressionOnExpressionsInAnotherLocale) {
  const CScopedGlobalLocale latin1(Latin1Locale());
  ExpectAgreementOnExpressions(false);
}

/// Compares on expressions with plain beginnings, which can rule out a name without the expression.
void ExpectAgreementAfterPlainBeginnings() {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  std::size_t fitting = 0;
  for (int i = 0; i < 4000; ++i) {
    const std::string beginning = RandomPlainText(generator);
    const std::string pattern = beginning + randomexpression::Pattern(generator);
    const std::optional<std::regex> expression = Expression(pattern);
    std::optional<vif::CNamePattern> namePattern = NamePattern(pattern);
    ASSERT_EQ(namePattern.has_value(), expression.has_value()) << reference::Shown(pattern);
    for (int j = 0; expression && j < 8; ++j) {
      std::string name = RandomNameNear(beginning, generator) + randomexpression::Subject(generator);
      if (RandomBelow(generator, 4) == 0) name.resize(RandomBelow(generator, name.size() + 1));
      const bool expected = std::regex_match(name, *expression);
      ASSERT_EQ(namePattern->Matches(name.c_str()), expected)
          << reference::Shown(pattern) << " on " << reference::Shown(name);
      fitting += expected ? 1U : 0U;
    }
  }
  EXPECT_GT(fitting, 100U);
}

TEST(NamePattern, AgreesWithTheExpressionAfterAPlainBeginning) { ExpectAgreementAfterPlainBeginnings(); }

TEST(NamePattern, AgreesWithTheExpressionAfterAPlainBeginningInAnotherLocale) {
  const CScopedGlobalLocale latin1(Latin1Locale());
  ExpectAgreementAfterPlainBeginnings();
}

constexpr size_t kLongName = 200'000;

/// The answer on a long name; nothing if the match ran out of stack. Other errors pass.
std::optional<bool> AnswerOnLongName(const char* pattern, const std::string& name) {
  try {
    return Matches(pattern, name);
  } catch (const std::regex_error& error) {
    EXPECT_EQ(error.code(), std::regex_constants::error_stack) << pattern;
    return std::nullopt;
  }
}

void ExpectAnswerOnLongName(const char* pattern, const std::string& name, bool expected) {
  const std::optional<bool> answer = AnswerOnLongName(pattern, name);
  if (vif::kHasStepwiseEngine) {
    EXPECT_TRUE(answer.has_value()) << pattern;
  }
  EXPECT_EQ(answer.value_or(expected), expected) << pattern;
}

TEST(NamePatternOnLongNames, AnswersWithoutABackReference) {
  const std::string name(kLongName, 'a');
  ExpectAnswerOnLongName(".*", name, true);
  ExpectAnswerOnLongName("(a|b)*", name, true);
  ExpectAnswerOnLongName("A+", name, true);
  ExpectAnswerOnLongName("[a-z]*", name, true);
  ExpectAnswerOnLongName(".*x", name, false);
  ExpectAnswerOnLongName("(b|a)*c", name, false);
  ExpectAnswerOnLongName(".*x", name + "x", true);
  ExpectAnswerOnLongName("(.*a)?", name, true);
}

TEST(NamePatternOnLongNames, TerminatesWithABackReference) {
  const std::string name(kLongName, 'a');
  EXPECT_EQ(AnswerOnLongName("(a)\\1*", name).value_or(true), true);
  EXPECT_EQ(AnswerOnLongName("(a)\\1*", name + "b").value_or(false), false);
  EXPECT_EQ(AnswerOnLongName("(a*)\\1", name).value_or(true), true);
}

TEST(NamePatternOnLongNames, RemainsUsableForShortNames) {
  const std::string longName(kLongName, 'a');
  for (const char* text : {"(a)\\1*", "(a|b)*"}) {
    vif::CNamePattern pattern(text);
    try {
      EXPECT_TRUE(pattern.Matches(longName.c_str()));
    } catch (const std::regex_error& error) {
      EXPECT_EQ(error.code(), kTooMuch);
    }
    EXPECT_TRUE(pattern.Matches("aaa"));
    EXPECT_FALSE(pattern.Matches("aac"));
  }
}

TEST(NamePatternOnLongNames, KeepsTheLocaleOfItsConstruction) {
  std::optional<vif::CNamePattern> pattern;
  {
    const CScopedGlobalLocale latin1(Latin1Locale());
    pattern.emplace("\xC9*");
  }
  ASSERT_TRUE(pattern->Matches("\xE9\xE9"));
  const std::string longName(kLongName, '\xE9');
  try {
    EXPECT_TRUE(pattern->Matches(longName.c_str()));
  } catch (const std::regex_error& error) {
    EXPECT_EQ(error.code(), std::regex_constants::error_stack);
  }
  EXPECT_TRUE(pattern->Matches("\xE9\xE9"));
}

TEST(NamePatternOfRepeatedNothing, TerminatesAlthoughItReadsNoCharacter) {
  for (const char* pattern : {"(()+){20}", "((()+){5}){5}", "(()*|()+){15}x"}) {
    try {
      EXPECT_FALSE(Matches(pattern, "aaa")) << pattern;
    } catch (const std::regex_error& error) {
      EXPECT_FALSE(vif::kHasStepwiseEngine) << pattern;
      EXPECT_EQ(error.code(), std::regex_constants::error_complexity) << pattern;
    }
  }
}

// libc++ allows one quantifier only.
#if defined(__GLIBCXX__)

TEST(NamePatternOfRepeatedNothing, IsAnsweredHoweverManyStatesItHas) {
  EXPECT_FALSE(Matches("()+{20}{20}", "aaa"));
  EXPECT_TRUE(Matches("()+{20}{20}a*", "aaa"));
}

#endif

}  // namespace

// The limits of name patterns on stacks of different sizes.
#include "KnownFields.h"
#include "NamePattern.h"
#include "RegexOutcome.h"
#include "RunOnStack.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <optional>
#include <ostream>
#include <regex>
#include <string>
#include <string_view>
#include <vector>

namespace {

using testsupport::kHasStepwise;
using testsupport::kNameSyntax;
using testsupport::kOrdinaryStack;
using testsupport::kSmallStack;
using testsupport::NamePatternOutcome;
using testsupport::RegexOutcome;
using testsupport::RegexOutcomeOf;
using testsupport::RunOnStack;

std::string Repeated(std::string_view text, std::size_t count) {
  std::string repeated;
  for (; count > 0; --count) repeated += text;
  return repeated;
}

/// The pattern in that many groups, each closed by `close`.
std::string Nested(std::string_view open, std::string_view pattern, std::string_view close, std::size_t count) {
  return Repeated(open, count) + std::string(pattern) + Repeated(close, count);
}

std::string AlternationOf(std::size_t names) {
  std::string pattern = "(";
  for (std::size_t i = 0; i < names; ++i) pattern += "Src_PDO_Field_Number_" + std::to_string(i) + "|";
  pattern.back() = ')';
  return pattern;
}

struct Question {
  std::string pattern;
  std::vector<std::string> names;
};

void PrintTo(const Question& question, std::ostream* stream) { *stream << question.pattern.substr(0, 40); }

// Valid patterns

class ValidPattern : public testing::TestWithParam<Question> {};

TEST_P(ValidPattern, GivesThePlainEnginesAnswerOnAnOrdinaryStack) {
  const Question& question = GetParam();
  std::vector<std::optional<bool>> answers;
  RunOnStack(kOrdinaryStack, [&] {
    for (const std::string& name : question.names) {
      answers.push_back(NamePatternOutcome(question.pattern, name).answer);
    }
  });
  constexpr std::size_t enoughForThePlainEngine = 16 * kOrdinaryStack;
  RunOnStack(enoughForThePlainEngine, [&] {
    const std::regex expression(question.pattern, kNameSyntax);
    for (std::size_t i = 0; i < answers.size(); ++i) {
      if (!kHasStepwise && !answers[i]) continue;  // too deep for libc++, where every character counts, or too long
      EXPECT_EQ(answers[i], std::regex_match(question.names[i], expression)) << question.names[i].substr(0, 40);
    }
  });
}

TEST_P(ValidPattern, AnswersOrRunsOutOfStackOnASmallStack) {
  const Question& question = GetParam();
  RunOnStack(kSmallStack, [&] {
    for (const std::string& name : question.names) {
      const RegexOutcome outcome = NamePatternOutcome(question.pattern, name);
      EXPECT_TRUE(outcome.answer || outcome.error == std::regex_constants::error_stack) << name.substr(0, 40);
    }
  });
}

INSTANTIATE_TEST_SUITE_P(
    Of, ValidPattern,
    testing::Values(
        Question{AlternationOf(1000), {"src_pdo_field_number_0", "Src_PDO_Field_Number_999", "Src_PDO_Field", "x", ""}},
        Question{AlternationOf(2500), {"src_pdo_field_number_0", "Src_PDO_Field_Number_2499", "Src_PDO_Field"}},
        Question{".{0,2000}", {"", "a", "Src_PDO", std::string(2000, 'a'), std::string(2001, 'a')}},
        Question{"[0-9]{2000}", {"", "1", "Src_PDO", std::string(2000, '1'), std::string(1999, '1')}},
        Question{std::string(1990, 'a') + ".*", {"", "a", std::string(1990, 'A'), std::string(2500, 'a')}},
        Question{Nested("(", "a", ")", 200), {"a", "b", ""}},
        Question{Nested("(", "a*", ")*", 12), {"a", "aaa", "b", ""}},
        Question{Nested("(?:", "a", ")?", 200), {"a", "b", ""}},
        Question{"(a)\\1.*", {std::string(3000, 'a'), "aa", "a"}},
        Question{"(a|b)\\1*", {std::string(3000, 'a'), std::string(2999, 'b') + "a"}},
        Question{"(.)(.*)\\1", {std::string(2000, 'a') + "b", "b" + std::string(2000, 'a') + "b"}}));

// Errors

/// The text of the error that asking the question throws; nothing if it is answered.
std::optional<std::string> ErrorText(const std::string& pattern, const std::string& name) {
  try {
    vif::CNamePattern(pattern.c_str()).Matches(name.c_str());
    return std::nullopt;
  } catch (const std::regex_error& error) {
    return error.what();
  }
}

TEST(PatternErrorText, ForTooLittleStackDoesNotBlameMemory) {
  constexpr const char* expected = "The regular expression needs more stack than this thread has left.";
  RunOnStack(kSmallStack, [&] {
    EXPECT_EQ(ErrorText(std::string(100'000, 'a') + ".*", "a"), expected);
#if defined(__GLIBCXX__)  // others match this on the heap
    EXPECT_EQ(ErrorText("(a)\\1.*", std::string(100'000, 'a')), expected);
#endif
  });
}

// libc++ counts the steps itself and has its own text.
#if defined(__GLIBCXX__)

TEST(PatternErrorText, ForTooLittleTimeMentionsSteps) {
  EXPECT_EQ(ErrorText("(a|aa)*\\1x", std::string(60, 'a')), "The regular expression takes too many steps.");
}

#endif

// Hostile patterns

/// The result of compiling the pattern and asking it about a few names.
RegexOutcome OutcomeOf(const std::string& pattern) {
  return RegexOutcomeOf([&] {
    vif::CNamePattern compiled(pattern.c_str());
    bool answer = false;
    for (const std::size_t length : {0U, 1U, 300U}) answer |= compiled.Matches(std::string(length, 'a').c_str());
    return answer;
  });
}

/// Whether a pattern that demands too much may have this outcome: an answer, or an error that says so.
bool IsAcceptable(const RegexOutcome& outcome) {
  return outcome.answer || outcome.IsWantOfStackOrTime() || outcome.error == std::regex_constants::error_space;
}

TEST(HostilePattern, IsRejectedForTooLittleStack) {
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
                                  "\\c[" + std::string(200'000, '('),
                                  Repeated("a*", 200'000),
                                  Repeated("[ab]", 200'000),
                                  Repeated("\\d", 200'000),
                                  Repeated("(a)", 200'000)};
  for (const std::size_t stack : {kSmallStack, kOrdinaryStack}) {
    RunOnStack(stack, [&] {
      for (const std::string& pattern : patterns) {
        EXPECT_EQ(OutcomeOf(pattern).error, std::regex_constants::error_stack) << pattern.substr(0, 40);
      }
    });
  }
}

TEST(HostilePattern, ThatBracesMakeLargeFails) {
  const std::string patterns[] = {"(a*){30000}",     "(a{1000}){1000}", "((((((a{9}){9}){9}){9}){9}){9}){9}",
                                  "a{1000000}",      "(){100000}",      "(^){100000}",
                                  "(^){40}{40}{10}", "(a?){40}{40}{8}", "(){40}{40}{12}",
                                  "(?:){20000}",     "a{0}{40000}",     Repeated("a|", 200'000)};
  for (const std::size_t stack : {kSmallStack, kOrdinaryStack}) {
    RunOnStack(stack, [&] {
      for (const std::string& pattern : patterns)
        EXPECT_TRUE(IsAcceptable(OutcomeOf(pattern))) << pattern.substr(0, 40);
    });
  }
}

TEST(HostilePattern, ThatIsNotAnExpressionIsRejected) {
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
  RunOnStack(kSmallStack, [&] {
    for (const std::string& pattern : patterns) EXPECT_FALSE(OutcomeOf(pattern).answer) << pattern.substr(0, 40);
  });
}

TEST(HostilePattern, WithAnOverflowingRepeatCountIsRejected) {
  for (const char* pattern :
       {"a{1000001}", "a{9999999999999999999}", "a{0,99999999999999999999999}", "(){999999999}"}) {
    const RegexOutcome outcome = OutcomeOf(pattern);
    EXPECT_FALSE(outcome.answer) << pattern;
    EXPECT_NE(outcome.error, std::regex_constants::error_stack) << pattern;
  }
}

TEST(HostilePattern, OfPlainTextIsHarmlessAtAnyLength) {
  const std::string pattern(1'000'000, 'a');
  RunOnStack(kSmallStack, [&] {
    vif::CNamePattern compiled(pattern.c_str());
    EXPECT_TRUE(compiled.Matches(pattern.c_str()));
    EXPECT_FALSE(compiled.Matches("a"));
  });
}

// Patterns of every shape and size, on stacks of every size

struct Shape {
  const char* open;  // repeated before "a", as often as the size says
  const char* close;
};

void PrintTo(const Shape& shape, std::ostream* stream) { *stream << shape.open << "a" << shape.close; }

class PatternOfEverySize : public testing::TestWithParam<Shape> {};

TEST_P(PatternOfEverySize, TerminatesOnStacksOfEverySize) {
  std::size_t answers = 0;
  std::size_t errors = 0;
  for (const std::size_t kilobytes : {128U, 160U, 200U, 256U, 384U, 600U, 1000U, 2000U}) {
    RunOnStack(kilobytes * 1024, [&] {
      for (std::size_t count = 4; count <= 16'384; count *= 4) {
        const std::string pattern = Nested(GetParam().open, "a", GetParam().close, count);
        const RegexOutcome outcome = OutcomeOf(pattern);
        EXPECT_TRUE(IsAcceptable(outcome)) << count << " on " << kilobytes << " kB: " << outcome.error;
        ++(outcome.answer ? answers : errors);
        if (!outcome.answer) break;  // larger ones need no less
      }
    });
  }
  if (kHasStepwise) {
    EXPECT_GT(answers, 0U);  // libc++ gives up on some even when they are short
  }
  EXPECT_GT(errors, 0U);
}

INSTANTIATE_TEST_SUITE_P(Of, PatternOfEverySize,
                         testing::Values(Shape{".", ""}, Shape{"^", ""}, Shape{"\\b", ""}, Shape{"[ab]", ""},
                                         Shape{"a?", ""}, Shape{"a??", ""}, Shape{"a*", ""}, Shape{"(a)", ""},
                                         Shape{"()", ""}, Shape{"(a)?", ""}, Shape{"(^)", ""}, Shape{"(?:a)?", ""},
                                         Shape{"(?=a)", ""}, Shape{"(?!b)", ""}, Shape{"(a|b)", ""}, Shape{"(|a)", ""},
                                         Shape{".|", ""}, Shape{"|", ""}, Shape{"(a){3}", ""}, Shape{"(a?){3}", ""},
                                         Shape{"(^){3}", ""}, Shape{"(?:|){9}", ""}, Shape{"(b)?\\1", ""},
                                         Shape{"(|^)", ""}, Shape{"(^)*", ""}, Shape{"(a?)*?", ""}, Shape{"(", ")"},
                                         Shape{"(?:", ")"}, Shape{"(?=", ")"}, Shape{"(a|", ")"}, Shape{"(", "|a)"},
                                         Shape{"(?:b|", ")"}, Shape{"(?:", "|b)"}, Shape{"(", ")?"}, Shape{"(?:", ")?"},
                                         Shape{"(a", ")"}, Shape{"(", ")*"}, Shape{"(?=(", ")*)"}, Shape{"(?:a?", ")+"},
                                         Shape{"(", "a)"}, Shape{"(?:|", "|)"}, Shape{"(b)|\\1(?:", ")"}));

}  // namespace

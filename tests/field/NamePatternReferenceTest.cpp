// Name patterns with back references that have more digits than the standard library can count.
#include "RegexOutcome.h"

#include <gtest/gtest.h>

#include <regex>
#include <string>

namespace {

using testsupport::NamePatternOutcome;

class ReferenceBeyondAllGroups : public testing::TestWithParam<const char*> {};

TEST_P(ReferenceBeyondAllGroups, IsAnError) {
  const auto outcome = NamePatternOutcome(std::string("(a)\\") + GetParam(), "aa");
  EXPECT_FALSE(outcome.answer.has_value());
  EXPECT_EQ(outcome.error, std::regex_constants::error_backref);
}

TEST_P(ReferenceBeyondAllGroups, IsAnErrorAfterAnotherEscape) {
  const auto outcome = NamePatternOutcome(std::string("(a)\\.\\") + GetParam(), "a.a");
  EXPECT_EQ(outcome.error, std::regex_constants::error_backref);
}

// The first two wrap to 1 in 32 and in 64 bits.
INSTANTIATE_TEST_SUITE_P(Of, ReferenceBeyondAllGroups,
                         testing::Values("4294967297", "18446744073709551617", "11111111111111111111111111111111"));

TEST(DigitsThatAreNotAReference, AreTakenLiterally) {
  EXPECT_EQ(NamePatternOutcome("\\d1234567890.?", "71234567890").answer, true);
  EXPECT_EQ(NamePatternOutcome("\\\\1234567890.?", "\\1234567890").answer, true);
  EXPECT_EQ(NamePatternOutcome("(a)\\1.*1234567890", "aa1234567890").answer, true);
}

TEST(DigitsThatAreNotAReference, MayFollowANulWrittenAsZero) {
  EXPECT_EQ(NamePatternOutcome("(a)\\01234567890", "a1234567890").answer, false);
  EXPECT_EQ(NamePatternOutcome("(a)\\0?1234567890", "a1234567890").answer, true);
}

}  // namespace

// What the host modules do unless a host overrides it.
#include "TestUtilities/TULog.h"
#include "TestUtilities/TUUserInput.h"

#include <gtest/gtest.h>

namespace {

TEST(HostModulesTest, PlainLogReturnsTheStatusOfALine) {
  CTULog log;
  EXPECT_EQ(log.DoWrite(1, eZoLogVerbosityAlways, nullptr, "line"), 1U);
  EXPECT_EQ(log.DoWrite(0x40000000, eZoLogVerbosityDetailed, nullptr, L"line"), 0x40000000U);
}

/// Implements only the function that every host must.
class CNobody final : public CTUUserInput {
 public:
  bool ChooseFile(const wchar_t*, const wchar_t*, unsigned long, unsigned long) override { return false; }
};

TEST(HostModulesTest, QuestionsHaveNoAnswerByDefault) {
  CNobody nobody;
  CTUUserInput& input = nobody;
  EXPECT_NO_THROW(input.ShowMessage(L"prompt", L"caption"));
  EXPECT_FALSE(input.AskYesNo(L"prompt", L"caption"));
  const wchar_t* const items[] = {L"one", L"two"};
  EXPECT_EQ(input.ChooseItem(L"prompt", L"caption", items, 2), -1);
}

TEST(HostModulesTest, NumberThatIsNotEnteredLeavesTheVariableUnchanged) {
  CNobody nobody;
  long number = 7;
  EXPECT_FALSE(nobody.AskNumber(L"prompt", L"caption", 1, 9, &number));
  EXPECT_EQ(number, 7);
}

}  // namespace

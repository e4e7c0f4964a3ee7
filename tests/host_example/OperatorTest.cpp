// The operator at a terminal, choosing a VIF.
#include "ReferenceHost.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testsupport::CReferenceHost;
using testsupport::kCouldNotRun;
using testsupport::kNothingFailed;
using testsupport::ProgramResult;

constexpr const char* kQuestion = "Number, or path of a file (nothing to cancel): ";

class Operator : public testing::Test {
 protected:
  void SetUp() override {
    if (!testsupport::HasTerminals()) GTEST_SKIP() << "this machine has no pseudo-terminals";
  }

  /// The directory is the test's own.
  ProgramResult Types(const std::string& typed) const { return m_host.RunOnTerminal({m_host.Dir().Path()}, typed); }

  std::string Selected(const std::string& path) const { return "0x04000000 INFO  Selected VIF: " + path + "."; }

  void ExpectNoChoice(const ProgramResult& result) const {
    EXPECT_EQ(result.status, kCouldNotRun);
    EXPECT_THAT(m_host.Log(), ElementsAre("0x40000000 ERROR No VIF selected for this test suite."));
  }

  CReferenceHost m_host;
};

/// How often the operator was asked.
long Questions(const ProgramResult& result) {
  long count = 0;
  for (size_t at = 0; (at = result.output.find(kQuestion, at)) != std::string::npos; ++at) ++count;
  return count;
}

TEST_F(Operator, IsShownWhatTheLibraryAsksAndTheVifsByName) {
  for (const char* name : {"b.XML", "a.txt", "c.json"}) m_host.Dir().Write(name, "");
  const auto lines = testsupport::Lines(Types("\n").output);
  const auto caption = std::find(lines.begin(), lines.end(), "Choose VIF for test suite");
  ASSERT_GE(lines.end() - caption, 6);
  EXPECT_THAT(std::vector<std::string>(caption + 1, caption + 5),
              ElementsAre("Select a Vendor Info File for the qualifying product under test",
                          "VIFs in " + m_host.Dir().Path().string() + ":", "  1  a.txt", "  2  b.XML"));
  EXPECT_THAT(*(caption + 5), testing::StartsWith(kQuestion));
}

TEST_F(Operator, ChoosesByNumber) {
  m_host.Dir().Write("a.txt", "");
  const std::string vif = m_host.Dir().Write("b.txt", "");
  EXPECT_EQ(Types("2\n").status, kNothingFailed);
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

TEST_F(Operator, TypesAPath) {
  const std::string vif = testsupport::Example("usb4-dock.xml");
  EXPECT_EQ(Types("  " + vif + " \n").status, kNothingFailed);
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

TEST_F(Operator, IsAskedAgainAfterANumberThatIsNotThere) {
  const std::string vif = m_host.Dir().Write("a.txt", "");
  const auto result = Types("0\n2\n99999999999999999999999\n1\n");
  EXPECT_EQ(result.status, kNothingFailed);
  EXPECT_THAT(result.output, AllOf(HasSubstr("The list has no number 0."), HasSubstr("The list has no number 2."),
                                   HasSubstr("The list has no number 99999999999999999999999.")));
  EXPECT_EQ(Questions(result), 4);
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

TEST_F(Operator, IsAskedAgainAfterAPathThatIsNoVif) {
  const std::string other = m_host.Dir().Write("a.json", "");
  const std::string vif = m_host.Dir().Write("a.txt", "");
  const auto result = Types("missing.txt\n" + m_host.Dir().Path().string() + "\n" + other + "\n" + vif + "\n");
  EXPECT_EQ(result.status, kNothingFailed);
  EXPECT_THAT(result.output, AllOf(HasSubstr("There is no file missing.txt."),
                                   HasSubstr("There is no file " + m_host.Dir().Path().string() + "."),
                                   HasSubstr(other + " is no VIF: its name ends neither in .txt nor in .xml.")));
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

TEST_F(Operator, WhoChoosesAnInvalidFileIsToldSo) {
  m_host.Dir().Write("a.xml", "<VIF/>");
  const ProgramResult result = Types("1\n");
  EXPECT_EQ(result.status, kCouldNotRun);
  EXPECT_THAT(result.output, HasSubstr("is not a valid Vendor Info File."));
  EXPECT_THAT(m_host.Log(), testing::Contains(HasSubstr("Unexpected error creating ")));
}

TEST_F(Operator, CancelsWithAnEmptyLine) {
  m_host.Dir().Write("a.txt", "");
  ExpectNoChoice(Types("\n1\n"));
}

TEST_F(Operator, CancelsWithQ) {
  m_host.Dir().Write("a.txt", "");
  ExpectNoChoice(Types("q\n1\n"));
}

TEST_F(Operator, CancelsByEndingTheInput) {
  m_host.Dir().Write("a.txt", "");
  ExpectNoChoice(Types(""));
}

TEST_F(Operator, CancelsByEndingTheInputAfterAWrongAnswer) {
  const auto result = Types("7\n");
  EXPECT_EQ(Questions(result), 2);
  ExpectNoChoice(result);
}

TEST_F(Operator, IsToldThatADirectoryHasNoVifs) {
  const auto result = Types("\n");
  EXPECT_THAT(result.output, HasSubstr("There are no VIFs in " + m_host.Dir().Path().string() + "."));
  ExpectNoChoice(result);
}

TEST_F(Operator, MayTypeAPathWhereADirectoryHasNoVifs) {
  EXPECT_EQ(Types(testsupport::Example("gan-charger-65w.txt") + "\n").status, kNothingFailed);
}

TEST_F(Operator, IsShownFileNamesWithEscapesAndChoosesTheFileItself) {
  m_host.Dir().Write("a\x1b[2J\n.txt", "");
  const auto result = Types("1\n");
  EXPECT_EQ(result.status, kNothingFailed);
  EXPECT_THAT(result.output, AllOf(HasSubstr("  1  a\\u001b[2J\\u000a.txt"), Not(HasSubstr("\x1b"))));
}

}  // namespace

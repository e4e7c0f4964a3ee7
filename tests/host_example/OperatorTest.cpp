// The operator choosing a VIF, at a terminal or through a pipe.
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

enum class Input { Terminal, Pipe };

class Operator : public testing::TestWithParam<Input> {
 protected:
  void SetUp() override {
    if (GetParam() == Input::Terminal && !testsupport::HasTerminals()) GTEST_SKIP() << testsupport::kNoTerminals;
  }

  /// The directory is the test's own.
  ProgramResult Types(const std::string& typed) const {
    if (GetParam() == Input::Terminal) return m_host.RunOnTerminal({m_host.Dir()}, typed);
    return m_host.Run({m_host.Dir()}, {.input = typed});
  }

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

TEST_P(Operator, IsShownTheLibrarysQuestionAndTheVifsByName) {
  for (const char* name : {"b.XML", "a.txt", "c.json"}) m_host.Write(name, "");
  const auto lines = testsupport::Lines(Types("\n").output);
  const auto caption = std::find(lines.begin(), lines.end(), "Choose VIF for test suite");
  ASSERT_GE(lines.end() - caption, 6);
  EXPECT_THAT(std::vector<std::string>(caption + 1, caption + 5),
              ElementsAre("Select a Vendor Info File for the qualifying product under test",
                          "VIFs in " + m_host.Dir() + ":", "  1  a.txt", "  2  b.XML"));
  EXPECT_THAT(*(caption + 5), testing::StartsWith(kQuestion));
}

TEST_P(Operator, ChoosesByNumber) {
  m_host.Write("a.txt", "");
  const std::string vif = m_host.Write("b.txt", "");
  EXPECT_EQ(Types("2\n").status, kNothingFailed);
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

TEST_P(Operator, TypesAPath) {
  const std::string vif = testsupport::Example("usb4-dock.xml");
  EXPECT_EQ(Types("  " + vif + " \n").status, kNothingFailed);
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

TEST_P(Operator, IsAskedAgainAfterAnInvalidNumber) {
  const std::string vif = m_host.Write("a.txt", "");
  const auto result = Types("0\n2\n99999999999999999999999\n1\n");
  EXPECT_EQ(result.status, kNothingFailed);
  EXPECT_THAT(result.output, AllOf(HasSubstr("The list has no number 0."), HasSubstr("The list has no number 2."),
                                   HasSubstr("The list has no number 99999999999999999999999.")));
  EXPECT_EQ(Questions(result), 4);
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

TEST_P(Operator, IsAskedAgainAfterAPathThatIsNotAVif) {
  const std::string other = m_host.Write("a.json", "");
  const std::string vif = m_host.Write("a.txt", "");
  const auto result = Types("missing.txt\n" + m_host.Dir() + "\n" + other + "\n" + vif + "\n");
  EXPECT_EQ(result.status, kNothingFailed);
  EXPECT_THAT(result.output,
              AllOf(HasSubstr("There is no file missing.txt."), HasSubstr("There is no file " + m_host.Dir() + "."),
                    HasSubstr(other + " is no VIF: its name ends neither in .txt nor in .xml.")));
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

TEST_P(Operator, WhoChoosesAnInvalidFileIsToldSo) {
  m_host.Write("a.xml", "<VIF/>");
  const ProgramResult result = Types("1\n");
  EXPECT_EQ(result.status, kCouldNotRun);
  EXPECT_THAT(result.output, HasSubstr("is not a valid Vendor Info File."));
  EXPECT_THAT(m_host.Log(), testing::Contains(HasSubstr("Unexpected error creating ")));
}

TEST_P(Operator, CancelsWithAnEmptyLine) {
  m_host.Write("a.txt", "");
  ExpectNoChoice(Types("\n1\n"));
}

TEST_P(Operator, CancelsWithQ) {
  m_host.Write("a.txt", "");
  ExpectNoChoice(Types("q\n1\n"));
}

TEST_P(Operator, CancelsByEndingTheInput) {
  m_host.Write("a.txt", "");
  ExpectNoChoice(Types(""));
}

TEST_P(Operator, CancelsByEndingTheInputAfterAWrongAnswer) {
  const auto result = Types("7\n");
  EXPECT_EQ(Questions(result), 2);
  ExpectNoChoice(result);
}

TEST_P(Operator, IsToldThatADirectoryHasNoVifs) {
  const auto result = Types("\n");
  EXPECT_THAT(result.output, HasSubstr("There are no VIFs in " + m_host.Dir() + "."));
  ExpectNoChoice(result);
}

TEST_P(Operator, MayTypeAPathWhereADirectoryHasNoVifs) {
  EXPECT_EQ(Types(testsupport::Example("gan-charger-65w.txt") + "\n").status, kNothingFailed);
}

TEST_P(Operator, IsShownFileNamesWithEscapesAndChoosesTheFileItself) {
#ifdef _WIN32  // names cannot contain characters below U+0020 there
  m_host.Write(u8"a\u009B2J\u0085.txt", "");
  const std::string escaped = "  1  a\\u009b2J\\u0085.txt";
#else
  m_host.Write("a\x1b[2J\n.txt", "");
  const std::string escaped = "  1  a\\u001b[2J\\u000a.txt";
#endif
  const auto result = Types("1\n");
  EXPECT_EQ(result.status, kNothingFailed);
  EXPECT_THAT(result.output, AllOf(HasSubstr(escaped), Not(HasSubstr("\x1b")), Not(HasSubstr("\u009B"))));
}

TEST_P(Operator, IsShownFileNamesInAnyLanguage) {
  const std::string vif = m_host.Write(u8"Gr\u00F6\u00DFe \u96FB\u529B \U0001F50C.txt", "");
  const auto result = Types("1\n");
  EXPECT_EQ(result.status, kNothingFailed);
  EXPECT_THAT(result.output, HasSubstr("  1  Gr\u00F6\u00DFe \u96FB\u529B \U0001F50C.txt"));
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

TEST_P(Operator, TypesAPathInAnyLanguage) {
  const std::string vif = m_host.Write(u8"Gr\u00F6\u00DFe \u96FB\u529B \U0001F50C.txt", "");
  EXPECT_EQ(Types(vif + "\n").status, kNothingFailed);
  EXPECT_EQ(m_host.Log().front(), Selected(vif));
}

INSTANTIATE_TEST_SUITE_P(, Operator, testing::Values(Input::Terminal, Input::Pipe),
                         [](const testing::TestParamInfo<Input>& input) {
                           return input.param == Input::Terminal ? "Terminal" : "Pipe";
                         });

}  // namespace

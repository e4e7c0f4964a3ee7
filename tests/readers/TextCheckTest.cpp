// What observers learn of the lines that loading skips.
#include "VIFTextCheck.h"

#include "ScriptedBuffer.h"
#include "TextReader.h"
#include "support/FieldText.h"
#include "support/RunTimeErrorOf.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <filesystem>
#include <ios>
#include <istream>
#include <regex>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

namespace vif {

namespace {

using namespace std::literals;
using testing::ElementsAre;
using testing::IsEmpty;
using testsupport::RunTimeErrorOf;
using testsupport::TempDir;

/// Collects reports as texts such as "3: not understood: <line>".
class Reports {
 public:
  VifLineObserver Observer() {
    return [this](const VifLineReport& report) {
      m_texts.push_back(std::to_string(report.line) + ": " + ProblemText(report.problem) + ": " +
                        std::string(report.text));
    };
  }

  const std::vector<std::string>& Texts() const { return m_texts; }

 private:
  static std::string ProblemText(EVifLineProblem problem) {
    switch (problem) {
      case eVifLineNotUnderstood: return "not understood";
      case eVifLineUnknownName: return "unknown name";
      case eVifLineReadFailed: return "read failed";
      default: return "problem " + std::to_string(problem);
    }
  }

  std::vector<std::string> m_texts;
};

std::vector<std::string> Check(std::istream& stream, const std::vector<VifFieldDef>* table = nullptr) {
  Reports reports;
  FollowTextVif(stream, "x.txt", table, {reports.Observer(), nullptr});
  return reports.Texts();
}

std::vector<std::string> Check(const std::string& text, const std::vector<VifFieldDef>* table = nullptr) {
  std::istringstream stream(text);
  return Check(stream, table);
}

TEST(TextCheckTest, ValidLinesAreNotReported) {
  EXPECT_THAT(Check("Src_PDO_Voltage2: 5000 ; 5 V\n$Vendor_Name: \"Acme\"\r\nCaptive_Cable: Yes\nPID: 0x1"), IsEmpty());
}

TEST(TextCheckTest, BlankLinesAndCommentsAreNotReported) {
  EXPECT_THAT(Check("\n  \t \r\n; comment\n \t;; USB_VID = 5\n;\n"), IsEmpty());
}

TEST(TextCheckTest, LinesThatMatchNeitherFormAreReported) {
  EXPECT_THAT(Check("USB_VID = 5\nPID: 1\nUSB_VID: -5\n$Vendor_Name: \"Acme\"; maker"),
              ElementsAre("1: not understood: USB_VID = 5", "3: not understood: USB_VID: -5",
                          "4: not understood: $Vendor_Name: \"Acme\"; maker"));
}

TEST(TextCheckTest, UnknownNamesAreReported) {
  EXPECT_THAT(Check("usb_vid: 5\nPID: 1\n$My_Own: \"x\""),
              ElementsAre("1: unknown name: usb_vid: 5", "3: unknown name: $My_Own: \"x\""));
}

TEST(TextCheckTest, LineWithAnUnknownNameStillYieldsItsField) {
  std::istringstream stream("usb_vid: 5\nPID: 1");
  std::vector<CVIFField> fields;
  const auto keep = [&](std::size_t, const CVIFField& field) { fields.push_back(field); };
  Reports reports;
  FollowTextVif(stream, "x.txt", nullptr, {reports.Observer(), keep});
  EXPECT_THAT(testsupport::FieldTexts(fields), ElementsAre("usb_vid=5", "PID=1 @6.1"));
  EXPECT_THAT(reports.Texts(), ElementsAre("1: unknown name: usb_vid: 5"));
}

TEST(TextCheckTest, EveryLineCountsForTheLineNumber) {
  EXPECT_THAT(Check("\n; comment\nPID: 1\r\n\r\noops\n\noops"),
              ElementsAre("5: not understood: oops", "7: not understood: oops"));
}

TEST(TextCheckTest, TextIsTheWholeLineWithoutTheBlanksAroundIt) {
  EXPECT_THAT(Check(" \t USB_VID = 5 ; \"five\" ;; \t\r\n"),
              ElementsAre("1: not understood: USB_VID = 5 ; \"five\" ;;"));
}

TEST(TextCheckTest, TextKeepsNulAndBytesThatAreNotUtf8) {
  EXPECT_THAT(Check("\0\xFF\n"s), ElementsAre("1: not understood: \0\xFF"s));
}

TEST(TextCheckTest, WhiteSpaceOtherThanBlanksIsReported) {
  EXPECT_THAT(Check("\v\nPID: 1\f"), ElementsAre("1: not understood: \v", "2: not understood: PID: 1\f"));
}

TEST(TextCheckTest, OwnTableDefinesWhatIsKnown) {
  const std::vector<VifFieldDef> table = {
      {L"A", std::wregex(L"A[0-9]"), {}},
      {L"B", std::wregex(L"\\$B"), {}},
  };
  EXPECT_THAT(Check("A1: 1\n$A2: \"x\"\n$B: \"x\"\nB: 1\nPID: 1", &table),
              ElementsAre("4: unknown name: B: 1", "5: unknown name: PID: 1"));
}

TEST(TextCheckTest, NameWithoutALocationIsKnown) { EXPECT_THAT(Check("OptionalContent: 1"), IsEmpty()); }

TEST(TextCheckTest, ReadFailureIsReportedAfterTheLastWholeLine) {
  testsupport::ScriptedBuffer buffer({"PID: 1\noops\nUSB_V"}, [] { throw std::ios_base::failure("gone"); });
  std::istream stream(&buffer);
  EXPECT_THAT(Check(stream), ElementsAre("2: not understood: oops", "3: read failed: "));
}

TEST(TextCheckTest, ReadFailureByExceptionIsThrown) {
  testsupport::ScriptedBuffer buffer({"oops\n"}, [] { throw std::ios_base::failure("gone"); });
  std::istream stream(&buffer);
  stream.exceptions(std::ios::badbit);
  EXPECT_EQ(RunTimeErrorOf([&] { Check(stream); }),
            "I/O read failure on Vendor Info File x.txt: "s + std::ios_base::failure("gone").what());
}

TEST(TextCheckTest, ChecksAFile) {
  const TempDir dir;
  Reports reports;
  CheckTextVif(dir.Write("x.txt", "PID: 1\noops\nmy_own: 1\n"), reports.Observer());
  EXPECT_THAT(reports.Texts(), ElementsAre("2: not understood: oops", "3: unknown name: my_own: 1"));
}

TEST(TextCheckTest, ChecksAFileWithItsOwnTable) {
  const TempDir dir;
  const std::vector<VifFieldDef> table = {{L"my_own", std::wregex(L"my_own"), {}}};
  Reports reports;
  CheckTextVif(dir.Write("x.txt", "PID: 1\nmy_own: 1\n"), reports.Observer(), &table);
  EXPECT_THAT(reports.Texts(), ElementsAre("1: unknown name: PID: 1"));
}

TEST(TextCheckTest, ChecksAnEmptyFile) {
  const TempDir dir;
  Reports reports;
  CheckTextVif(dir.Write("x.txt", ""), reports.Observer());
  EXPECT_THAT(reports.Texts(), IsEmpty());
}

TEST(TextCheckTest, FileThatCannotBeOpenedIsAnError) {
  const TempDir dir;
  const std::filesystem::path path = dir.Path() / "missing.txt";
  Reports reports;
  EXPECT_EQ(RunTimeErrorOf([&] { CheckTextVif(path, reports.Observer()); }),
            "Couldn't open Vendor Info File: " + path.string() + ".");
  EXPECT_EQ(RunTimeErrorOf([&] { CheckTextVif("", reports.Observer()); }),
            "CVIFImpl::ReadTextFile: Internal error: NULL file name.");
  EXPECT_THAT(reports.Texts(), IsEmpty());
}

TEST(TextCheckTest, UnknownLocationIsAnError) {
  const TempDir dir;
  const std::vector<VifFieldDef> table = {{L"B", std::wregex(L"B"), {static_cast<EVifLocation>(13)}}};
  Reports reports;
  EXPECT_EQ(RunTimeErrorOf([&] { CheckTextVif(dir.Write("x.txt", "oops\nB: 1\noops"), reports.Observer(), &table); }),
            "Internal error - Unknown EVifLocation: 13");
  EXPECT_THAT(reports.Texts(), ElementsAre("1: not understood: oops"));
}

TEST(TextCheckTest, ExceptionOfTheObserverEndsTheReading) {
  const TempDir dir;
  int calls = 0;
  const auto observer = [&](const VifLineReport&) {
    ++calls;
    throw std::logic_error("enough");
  };
  EXPECT_THROW(CheckTextVif(dir.Write("x.txt", "oops\noops\n"), observer), std::logic_error);
  EXPECT_EQ(calls, 1);
}

TEST(TextCheckTest, StringNameIsOnlyLookedUpWithoutItsMark) {
  // Loading never sees "Bad", so it does not matter that its definition has an invalid location.
  const std::vector<VifFieldDef> table = {{L"Bad", std::wregex(L"Bad"), {static_cast<EVifLocation>(13)}}};
  EXPECT_THAT(Check("$Bad: \"x\"\n", &table), IsEmpty());
}

TEST(TextCheckTest, RegexErrorOfTheObserverPasses) {
  std::istringstream stream("no declaration\n");
  const auto observer = [](const VifLineReport&) { throw std::regex_error(std::regex_constants::error_brace); };
  EXPECT_THROW(FollowTextVif(stream, "a.txt", nullptr, {observer, nullptr}), std::regex_error);
}

TEST(TextCheckTest, LookupWithoutTheMarkCannotFailTheFile) {
  // Reads on only after a letter, so the name with its mark is harmless.
  const std::vector<VifFieldDef> table = {{L"Long", std::wregex(L"(a|b)*c"), {}}};
  EXPECT_THAT(Check("$" + std::string(200'000, 'a') + ": \"x\"\n", &table), testing::SizeIs(1));
}

TEST(TextCheckTest, ContentIsWhatIsReadAsADeclaration) {
  const TempDir dir;
  std::vector<std::string> contents;
  CheckTextVif(dir.Write("x.txt", " oops ; comment\n$TID: \"a\";b\nmy_own: 1 ;c\n"),
               [&](const VifLineReport& report) { contents.emplace_back(report.content); });
  EXPECT_THAT(contents, ElementsAre("oops", "$TID: \"a\";", "my_own: 1"));
}

TEST(TextCheckTest, FieldsAreReportedWithTheirLines) {
  const TempDir dir;
  std::vector<std::string> fields;
  CheckTextVif(dir.Write("x.txt", "PID: 1\n; comment\n\noops\nSrc_PDO_Voltage2: 100 ; 5 V\n$TID: \"7\""), nullptr,
               nullptr, [&](std::size_t line, const CVIFField& field) {
                 fields.push_back(std::to_string(line) + ": " + testsupport::FieldText(field));
               });
  EXPECT_THAT(fields, ElementsAre("1: PID=1 @6.1", "5: Src_PDO_Voltage=100 ; 5 V @6.1 @7.2", "6: $TID=\"7\""));
}

TEST(TextCheckTest, AnUnknownNameIsReportedBeforeItsField) {
  const TempDir dir;
  std::vector<std::string> calls;
  CheckTextVif(
      dir.Write("x.txt", "my_own: 1\nPID: 1\n"), [&](const VifLineReport&) { calls.emplace_back("line"); }, nullptr,
      [&](std::size_t, const CVIFField& field) { calls.emplace_back(field.Name()); });
  EXPECT_THAT(calls, ElementsAre("line", "my_own", "PID"));
}

TEST(TextCheckTest, ExceptionOfTheFieldObserverEndsTheReading) {
  const TempDir dir;
  int calls = 0;
  const auto observer = [&](std::size_t, const CVIFField&) {
    ++calls;
    throw std::logic_error("enough");
  };
  EXPECT_THROW(CheckTextVif(dir.Write("x.txt", "PID: 1\nPID: 2\n"), nullptr, nullptr, observer), std::logic_error);
  EXPECT_EQ(calls, 1);
}

TEST(TextCheckTest, ChecksAFileWithoutAnObserver) {
  const TempDir dir;
  EXPECT_NO_THROW(CheckTextVif(dir.Write("a.txt", "no declaration\n"), nullptr));
}

}  // namespace

}  // namespace vif

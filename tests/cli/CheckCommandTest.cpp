// `vif check` as a user runs it: its formats and exit status.
#include "FindingTexts.h"
#include "support/XmlVif.h"

#include <gmock/gmock.h>

#include <filesystem>

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using testsupport::CheckJson;
using testsupport::Example;
using testsupport::FindingTexts;
using testsupport::Lines;
using testsupport::ProgramResult;
using testsupport::TempDir;

ProgramResult Check(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "check");
  return testsupport::Vif(arguments);
}

void ExpectFailure(const ProgramResult& result, const std::string& reason) {
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(Lines(result.error).size(), 1U) << result.error;
  EXPECT_THAT(result.error, StartsWith("vif: "));
  EXPECT_THAT(result.error, HasSubstr(reason));
}

TEST(Check, FindsNothingInTheExamples) {
  std::vector<std::string> files;
  for (const auto& entry : std::filesystem::directory_iterator(VIF_EXAMPLES)) {
    if (entry.path().extension() == ".txt") files.push_back(entry.path().string());
  }
  ASSERT_GE(files.size(), 3U);
  const ProgramResult result = Check(files);
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "no findings\n");
  EXPECT_EQ(result.error, "");
}

TEST(Check, PrintsFindingsLikeACompiler) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "PID: 1\nPID: -5\nMy_Own: 1\n").string();
  const ProgramResult result = Check({file});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, "");
  EXPECT_THAT(Lines(result.output),
              ElementsAre(file + ":2: error: 'PID' yields no field: the number '-5' has a sign [not-a-declaration]",
                          file + ":3: warning: unknown name 'My_Own' [unknown-name]", "1 error, 1 warning"));
}

TEST(Check, FindingsAreInTheOrderOfTheLines) {
  EXPECT_THAT(FindingTexts(testsupport::FindingsIn("a.txt", "Num_Src_PDOs: 2\nPID: 1\nPID: 2\noops\nMy_Own: 1\n")),
              ElementsAre("1 error count-mismatch", "3 error declared-twice", "4 error not-a-declaration",
                          "5 warning unknown-name"));
}

TEST(Check, WarningsAloneAreStatusZero) {
  const TempDir dir;
  const ProgramResult result = Check({dir.Write("a.txt", "My_Own: 1\nMy_Other: 1\n").string()});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(Lines(result.output).back(), "2 warnings");
}

TEST(Check, TheLastLineCountsTheFindingsOfAllFiles) {
  const TempDir dir;
  const std::string first = dir.Write("a.txt", "oops\n").string();
  const std::string second = dir.Write("b.txt", "PID: 1\nPID: 1\nMy_Own: 1\n").string();
  const ProgramResult result = Check({first, second});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(Lines(result.output).size(), 4U);
  EXPECT_EQ(Lines(result.output).back(), "2 errors, 1 warning");
}

TEST(Check, EachFileIsCheckedOnItsOwn) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "PID: 1\n").string();
  EXPECT_EQ(Check({file, file}).output, "no findings\n");
}

TEST(Check, FileWithoutAnyFieldIsAnError) {
  const TempDir dir;
  const std::string empty = dir.Write("a.txt", "; nothing\n").string();
  EXPECT_EQ(Check({empty}).output, empty + ": error: the file yields no field [nothing-read]\n1 error\n");
  EXPECT_EQ(Check({empty}).status, 1);
  EXPECT_THAT(testsupport::FindingTexts(testsupport::FindingsIn("a.xml", testsupport::XmlVif(""))),
              testing::ElementsAre("- error nothing-read"));
}

TEST(Check, ControlCharactersDoNotReachTheTerminal) {
  const TempDir dir;
  const auto path = dir.Write(u8"a\u009B1m.txt", "P\x1b[2JD: 5\nPID: \x1b[2J\n");  // no name on Windows has an ESC
  const ProgramResult result = Check({testsupport::NameOf(path)});
  EXPECT_EQ(result.output.find('\x1b'), std::string::npos) << result.output;
  EXPECT_EQ(result.output.find("\u009B"), std::string::npos) << result.output;
  EXPECT_THAT(result.output, HasSubstr("a\\x9b1m.txt:2: error: 'PID' yields no field: '\\x1b[2J' is neither"));
}

TEST(Check, LongTextsAreShortened) {
  const TempDir dir;
  const ProgramResult result = Check({dir.Write("a.txt", "PID: " + std::string(100'000, 'x') + "\n").string()});
  EXPECT_LT(Lines(result.output).front().size(), 400U);
}

TEST(CheckJson, HasItsMembersInTheirOrder) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "My_Own: 1\n").string();
  EXPECT_EQ(Check({"--format", "json", file}).output,
            "{\"files\":[\n{\"file\":" + json(file).dump() +
                ",\"valid\":true,\"findings\":[\n"
                R"({"severity":"warning","code":"unknown-name","line":1,"column":null,"element":"My_Own",)"
                R"("message":"unknown name 'My_Own'"})"
                "\n]}\n],\n\"errors\":0,\"warnings\":1,\"notes\":0}\n");
}

TEST(CheckJson, AFileWithAnErrorIsNotValid) {
  const TempDir dir;
  const std::string flawed = dir.Write("a.txt", "PID: 1\nPID: 1\n").string();
  const json answer = CheckJson({flawed, Example("gan-charger-65w.txt")});
  EXPECT_EQ(answer["files"][0]["file"], flawed);
  EXPECT_EQ(answer["files"][0]["valid"], false);
  EXPECT_EQ(answer["files"][1]["valid"], true);
  EXPECT_EQ(answer["files"][1]["findings"], json::array());
  EXPECT_EQ(answer["errors"], 1);
  EXPECT_EQ(answer["warnings"], 0);
}

TEST(CheckJson, HasTheExitStatusOfTheTextForm) {
  const TempDir dir;
  EXPECT_EQ(Check({"--format", "json", dir.Write("a.txt", "oops\n").string()}).status, 1);
  EXPECT_EQ(Check({"--format", "json", dir.Write("b.txt", "My_Own: 1\n").string()}).status, 0);
}

TEST(CheckJson, TheElementIsNullWhereNoNameIsKnown) {
  const json findings = testsupport::FindingsIn("a.txt", "oops\n: 5\nP-D: 5\n");
  EXPECT_TRUE(findings[0]["element"].is_null());
  EXPECT_TRUE(findings[1]["element"].is_null());
  EXPECT_EQ(findings[2]["element"], "P-D");
}

TEST(CheckJson, BytesThatAreNotUtf8BecomeReplacementCharacters) {
  const json findings = testsupport::FindingsIn("a.txt", "P\xFF: 5\n");
  EXPECT_EQ(findings[0]["element"], "P\uFFFD");
  EXPECT_THAT(findings[0]["message"].get<std::string>(), HasSubstr("'\uFFFD' is not allowed in a name"));
}

TEST(CheckFailure, AMissingFile) { ExpectFailure(Check({"/nonexistent/a.txt"}), "/nonexistent/a.txt: there is no"); }

TEST(CheckFailure, AnotherExtension) {
  const TempDir dir;
  ExpectFailure(Check({dir.Write("a.csv", "PID: 1\n").string()}), "a VIF is a text (*.txt) or XML (*.xml) file");
}

TEST(CheckFailure, ADirectory) {
  const TempDir dir;
  std::filesystem::create_directory(dir.Path() / "a.txt");
  ExpectFailure(Check({(dir.Path() / "a.txt").string()}), "only a regular file can be read");
}

TEST(CheckFailure, AnEmptyName) { ExpectFailure(Check({""}), "a file name is empty"); }

TEST(CheckFailure, OneFileThatCannotBeReadFailsAll) {
  ExpectFailure(Check({Example("gan-charger-65w.txt"), "/nonexistent/a.txt"}), "/nonexistent/a.txt");
}

TEST(CheckFailure, AnUnknownFormat) {
  ExpectFailure(Check({"--format", "csv", "a.txt"}), "csv not in {text,json,sarif}");
}

TEST(CheckFailure, NoFile) { ExpectFailure(Check({}), "FILE is required"); }

TEST(CheckExtension, MayHaveAnyLetterCase) {
  const TempDir dir;
  EXPECT_EQ(Check({dir.Write("a.TXT", "PID: 1\n").string()}).status, 0);
}

TEST(CheckHelp, NamesEveryCode) {
  const std::string help = Check({"--help"}).output;
  for (const char* code :
       {"error    wrong-extension", "error    not-a-declaration", "error    read-failed", "error    not-valid",
        "error    misplaced", "error    declared-twice", "error    no-number", "error    count-mismatch",
        "warning  count-out-of-range", "warning  no-index", "warning  numbering-gap", "warning  no-field",
        "warning  text-in-group", "warning  byte-order-mark", "warning  number-partly-read", "warning  unknown-name"}) {
    EXPECT_THAT(help, HasSubstr(code));
  }
}

class SchemasOption : public testing::TestWithParam<const char*> {};

TEST_P(SchemasOption, NamesADirectory) {
  const TempDir dir;
  const std::string file = Example("gan-charger-65w.txt");
  ExpectFailure(testsupport::Vif({GetParam(), "--schemas", dir.Path().string(), file}), "neither schema is in ");
  dir.Write("VendorInfoFile.xsd", "");
  EXPECT_EQ(testsupport::Vif({GetParam(), "--schemas", dir.Path().string(), file}).status, 0);
  ExpectFailure(testsupport::Vif({GetParam(), "--schemas", "/nonexistent", file}),
                "\"/nonexistent\" is not a directory");
}

INSTANTIATE_TEST_SUITE_P(EveryCommand, SchemasOption, testing::Values("list", "get", "show", "check"));

}  // namespace

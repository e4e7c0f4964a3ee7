// Which findings `vif check` reports, and how they decide its exit status.
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testsupport::Lines;
using testsupport::ProgramResult;
using testsupport::TempDir;

/// An error, declared-twice, and a warning, unknown-name.
constexpr std::string_view kFlawed = "PID: 1\nPID: 2\nMy_Own: 1\n";
constexpr std::string_view kWarned = "PID: 1\nMy_Own: 1\n";

class CheckOptions : public testing::Test {
 protected:
  ProgramResult Check(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), "check");
    return testsupport::Vif(arguments, {.directory = m_dir.Path()});
  }

  /// The codes of what is found in one file.
  std::vector<std::string> Codes(std::vector<std::string> arguments) const {
    arguments.insert(arguments.begin(), {"--format", "json"});
    std::vector<std::string> codes;
    const json files = json::parse(Check(arguments).output)["files"];
    for (const json& finding : files.at(0)["findings"]) codes.push_back(finding["code"]);
    return codes;
  }

  void Write(const std::string& name, std::string_view content) const { m_dir.Write(name, content); }

  void ExpectFailure(const ProgramResult& result, const std::string& reason) const {
    EXPECT_EQ(result.status, 2);
    EXPECT_EQ(result.output, "");
    EXPECT_EQ(Lines(result.error).size(), 1U) << result.error;
    EXPECT_THAT(result.error, HasSubstr(reason));
  }

 private:
  TempDir m_dir;
};

TEST_F(CheckOptions, OnlyNamesNotesToo) {
  Write("a.txt", "$Vendor_Name: \"FIX-ME\"\n");
  EXPECT_THAT(Codes({"a.txt"}), IsEmpty());
  EXPECT_THAT(Codes({"--only", "placeholder", "a.txt"}), ElementsAre("placeholder"));
}

TEST_F(CheckOptions, OnlyKeepsFindingsWithTheCodes) {
  Write("a.txt", kFlawed);
  EXPECT_THAT(Codes({"--only", "unknown-name", "a.txt"}), ElementsAre("unknown-name"));
  EXPECT_THAT(Codes({"--only", "unknown-name,declared-twice", "a.txt"}), ElementsAre("declared-twice", "unknown-name"));
  EXPECT_THAT(Codes({"--only", "unknown-name", "--only", "no-index", "a.txt"}), ElementsAre("unknown-name"));
  EXPECT_EQ(Check({"--only", "unknown-name", "a.txt"}).status, 0);
}

TEST_F(CheckOptions, ExceptRemovesFindingsWithTheCodes) {
  Write("a.txt", kFlawed);
  EXPECT_THAT(Codes({"--except", "declared-twice", "a.txt"}), ElementsAre("unknown-name"));
  EXPECT_THAT(Codes({"--except", "declared-twice,unknown-name", "a.txt"}), IsEmpty());
  EXPECT_THAT(Codes({"--only", "declared-twice", "--except", "declared-twice", "a.txt"}), IsEmpty());
}

TEST_F(CheckOptions, CodesAreInAnyLetterCase) {
  Write("a.txt", kFlawed);
  EXPECT_THAT(Codes({"--only", "Unknown-NAME", "a.txt"}), ElementsAre("unknown-name"));
}

TEST_F(CheckOptions, AnUnknownCodeIsAnErrorWithTheNearestOne) {
  Write("a.txt", kFlawed);
  ExpectFailure(Check({"--only", "unkown-name", "a.txt"}),
                "--only: there is no finding 'unkown-name'; did you mean 'unknown-name'?");
  ExpectFailure(Check({"--except", "declared-twice,something else", "a.txt"}),
                "--except: there is no finding 'something else'");
}

TEST_F(CheckOptions, FailOnSaysFromWhichSeverityOnTheStatusIsOne) {
  Write("flawed.txt", kFlawed);
  Write("warned.txt", kWarned);
  Write("clean.txt", "PID: 1\n");
  const auto status = [&](const char* severity, const char* file) {
    return Check({"--fail-on", severity, file}).status;
  };
  EXPECT_EQ(status("error", "flawed.txt"), 1);
  EXPECT_EQ(status("error", "warned.txt"), 0);
  EXPECT_EQ(status("warning", "flawed.txt"), 1);
  EXPECT_EQ(status("warning", "warned.txt"), 1);
  EXPECT_EQ(status("warning", "clean.txt"), 0);
  EXPECT_EQ(status("note", "warned.txt"), 1);
  EXPECT_EQ(status("note", "clean.txt"), 0);
  EXPECT_EQ(status("never", "flawed.txt"), 0);
  EXPECT_EQ(status("sometimes", "flawed.txt"), 2);
}

TEST_F(CheckOptions, NotesAreCountedInTheJson) {
  Write("a.txt", kFlawed);
  const json checked = json::parse(Check({"--notes", "--format", "json", "a.txt"}).output);
  EXPECT_EQ(checked["errors"], 1);
  EXPECT_EQ(checked["warnings"], 1);
  EXPECT_TRUE(checked["notes"].is_number_unsigned());
}

TEST_F(CheckOptions, BaselineLeavesOutWhatAnEarlierRunHasFound) {
  Write("a.txt", kFlawed);
  Write("known.json", Check({"--format", "json", "a.txt"}).output);
  EXPECT_EQ(Check({"--baseline", "known.json", "a.txt"}).output, "no findings\n");
  EXPECT_EQ(Check({"--baseline", "known.json", "a.txt"}).status, 0);

  Write("a.txt", std::string("; a line more\n") + std::string(kWarned) + "My_Other: 1\n");
  EXPECT_EQ(Lines(Check({"--baseline", "known.json", "a.txt"}).output).size(), 2U);
  EXPECT_THAT(Check({"--baseline", "known.json", "a.txt"}).output, HasSubstr("My_Other"));
}

TEST_F(CheckOptions, BaselineKnowsAFieldThatIsDeclaredTwiceInOtherLines) {
  Write("a.txt", "PID_SOP: 1\nPID_SOP: 1\n");
  Write("known.json", Check({"--format", "json", "a.txt"}).output);
  Write("a.txt", "; a line more\nPID_SOP: 1\nPID_SOP: 1\n");
  EXPECT_THAT(Codes({"a.txt"}), testing::Contains("declared-twice"));
  EXPECT_THAT(Codes({"--baseline", "known.json", "a.txt"}), IsEmpty());
}

TEST_F(CheckOptions, BaselineIsForTheFileOfTheSameBaseName) {
  Write("a.txt", kFlawed);
  Write("b.txt", kFlawed);
  std::string known = Check({"--format", "json", "a.txt"}).output;
  known.replace(known.find("\"a.txt\""), 7, R"("C:\\elsewhere\\a.txt")");
  Write("known.json", known);
  EXPECT_THAT(Codes({"--baseline", "known.json", "a.txt"}), IsEmpty());
  EXPECT_THAT(Codes({"--baseline", "known.json", "b.txt"}), ElementsAre("declared-twice", "unknown-name"));
}

TEST_F(CheckOptions, BaselineKnowsElementsThatAreNotUtf8) {
  Write("a.txt", "My\xFF_Own: 1\n");
  Write("known.json", Check({"--format", "json", "a.txt"}).output);
  EXPECT_THAT(Codes({"a.txt"}), testing::Not(IsEmpty()));
  EXPECT_THAT(Codes({"--baseline", "known.json", "a.txt"}), IsEmpty());
}

TEST_F(CheckOptions, BaselineMustBeTheOutputOfACheck) {
  Write("a.txt", kFlawed);
  for (const char* content : {"", "{", "[]", "{}", "null", "{\"files\":1}", "{\"files\":[{\"file\":\"a.txt\"}]}",
                              "{\"files\":[{\"file\":1,\"findings\":[]}]}", "{\"files\":[{\"file\":\"\\ud800\"}]}"}) {
    Write("known.json", content);
    ExpectFailure(Check({"--baseline", "known.json", "a.txt"}), "is not the output of 'vif check --format json'");
  }
  ExpectFailure(Check({"--baseline", "missing.json", "a.txt"}), "--baseline: there is no file \"missing.json\"");
  ExpectFailure(Check({"--baseline", ".", "a.txt"}), "--baseline: there is no file \".\"");
}

}  // namespace

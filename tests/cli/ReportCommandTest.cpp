// `vif report` as a user runs it.
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

namespace {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;
using testsupport::Example;
using testsupport::ProgramResult;
using testsupport::TempDir;
using testsupport::Vif;

constexpr const char* kCharger = "gan-charger-65w.txt";

std::string ContentOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  std::stringstream content;
  content << file.rdbuf();
  return content.str();
}

TEST(ReportCommand, WritesAPageToStandardOutput) {
  const ProgramResult result = Vif({"report", Example(kCharger)});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.output, AllOf(StartsWith("<!DOCTYPE html>\n"), HasSubstr("QPW-G65-1C"), EndsWith("</html>\n")));
}

TEST(ReportCommand, WritesTheSamePageToAFile) {
  const TempDir dir;
  const std::filesystem::path page = dir.Path() / "page.html";
  const ProgramResult result = Vif({"report", "-o", page.string(), Example(kCharger)});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(ContentOf(page), Vif({"report", Example(kCharger)}).output);
}

TEST(ReportCommand, ReplacesAnEarlierPage) {
  const TempDir dir;
  const std::filesystem::path page = dir.Write("page.html", std::string(1'000'000, 'x'));
  EXPECT_EQ(Vif({"report", "--output", page.string(), Example(kCharger)}).status, 0);
  EXPECT_THAT(ContentOf(page), AllOf(StartsWith("<!DOCTYPE html>"), EndsWith("</html>\n")));
}

TEST(ReportCommand, ShowsFindingsWithNotesAndLinksThemToTheirFields) {
  const TempDir dir;
  const std::string vif = "PID: 1\nPID: 2\nVIF_Specification: 3.2\nUFP_Supports_PCIe: 1\n";
  const ProgramResult result = Vif({"report", dir.Write("a.txt", vif).string()});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.output, AllOf(HasSubstr("href=\"#rule-declared-twice\""), HasSubstr("<a href=\"#field-1\">")));
}

TEST(ReportCommand, ComparesTwoFiles) {
  const ProgramResult result = Vif({"report", Example(kCharger), Example("gan-charger-65w.xml")});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.output, HasSubstr("None: both files mean the same."));
}

TEST(ReportCommand, FailsForAFileThatCannotBeLoadedAndWritesNothing) {
  const TempDir dir;
  const std::filesystem::path page = dir.Path() / "page.html";
  const ProgramResult result = Vif({"report", "-o", page.string(), (dir.Path() / "none.txt").string()});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, AllOf(StartsWith("vif: "), HasSubstr("none.txt")));
  EXPECT_FALSE(std::filesystem::exists(page));
}

TEST(ReportCommand, DoesNotOverwriteTheVif) {
  const TempDir dir;
  const std::filesystem::path vif = dir.Write("a.txt", "PID: 1\n");
  const ProgramResult result = Vif({"report", "-o", vif.string(), vif.string()});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, HasSubstr("cannot write " + vif.string() + ": it is the VIF itself"));
  EXPECT_EQ(ContentOf(vif), "PID: 1\n");
}

TEST(ReportCommand, SaysWhyThePageCannotBeWritten) {
  const TempDir dir;
  const std::filesystem::path page = dir.Path() / "none" / "page.html";
  const ProgramResult result = Vif({"report", "-o", page.string(), Example(kCharger)});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, AllOf(StartsWith("vif: cannot write " + page.string() + ": "), HasSubstr("directory")));
}

TEST(ReportCommand, TakesOneFileOrTwo) {
  const std::string file = Example(kCharger);
  const ProgramResult result = Vif({"report", file, file, file});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "vif: vif report takes one file or two; 3 are given (see 'vif report --help')\n");
}

}  // namespace

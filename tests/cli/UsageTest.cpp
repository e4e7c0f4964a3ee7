// The help of `vif`, and its answers to wrong usage.
#include "support/VifCommand.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::StartsWith;
using testsupport::Lines;
using testsupport::ProgramResult;
using testsupport::Vif;

void ExpectUsageError(const ProgramResult& result, const std::string& reason) {
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.output, IsEmpty());
  EXPECT_EQ(Lines(result.error).size(), 1U) << result.error;
  EXPECT_THAT(result.error, StartsWith("vif: "));
  EXPECT_THAT(result.error, HasSubstr(reason));
}

TEST(Usage, HelpGoesToStandardOutput) {
  const ProgramResult result = Vif({"--help"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.error, IsEmpty());
  EXPECT_THAT(result.output, HasSubstr("Vendor Info Files"));
  EXPECT_THAT(result.output, HasSubstr("list "));
  EXPECT_THAT(result.output, HasSubstr("Exit status: 0 done; 1 ran, but found no match, problems or differences;"));
}

TEST(Usage, HelpOfACommandNamesItsOptionsAndGivesExamples) {
  const ProgramResult result = Vif({"list", "--help"});
  EXPECT_EQ(result.status, 0);
  EXPECT_THAT(result.output, HasSubstr("Usage: vif list [OPTIONS] FILE..."));
  EXPECT_THAT(result.output, HasSubstr("--format FORMAT"));
  EXPECT_THAT(result.output, HasSubstr("vif list --format json"));
}

TEST(Usage, HelpIsLaidOutAlikeWithEveryVersionOfTheParser) {
  EXPECT_THAT(Vif({"list", "--help"}).output,
              StartsWith("List all fields\n"
                         "Usage: vif list [OPTIONS] FILE...\n"
                         "\n"
                         "Positionals:\n"
                         "  FILE ...          The files, text (.txt) or XML (.xml)\n"
                         "\n"
                         "Options:\n"
                         "  -h,--help         Print this help and exit\n"
                         "  --format FORMAT   The output format: table (the default), json or csv\n"));
  EXPECT_THAT(Vif({"--help"}).output, HasSubstr("\nUsage: vif [OPTIONS] COMMAND ...\n\nOptions:\n"));
  EXPECT_THAT(Vif({"--help"}).output, HasSubstr("\n\nCommands:\n  list              List all fields\n"));
  EXPECT_THAT(Vif({"check", "--help"}).output, HasSubstr("\n  --fail-on SEVERITY\n                    The lowest"));
  EXPECT_THAT(Vif({"get", "--help"}).output, HasSubstr("\nUsage: vif get [OPTIONS] FILE [PATTERN]\n"));
}

class UsageOfEveryCommand : public testing::TestWithParam<std::vector<std::string>> {};

TEST_P(UsageOfEveryCommand, HelpFitsAnOrdinaryTerminal) {
  const ProgramResult result = Vif(GetParam());
  ASSERT_EQ(result.status, 0);
  const std::vector<std::string> lines = Lines(result.output);
  EXPECT_GT(lines.size(), 10U);
  for (const std::string& line : lines) {
    EXPECT_LE(line.size(), 80U) << line;
    EXPECT_FALSE(line.ends_with(' ')) << line;
  }
}

INSTANTIATE_TEST_SUITE_P(All, UsageOfEveryCommand,
                         testing::Values(std::vector<std::string>{"--help"}, std::vector<std::string>{"list", "--help"},
                                         std::vector<std::string>{"get", "--help"},
                                         std::vector<std::string>{"show", "--help"},
                                         std::vector<std::string>{"check", "--help"},
                                         std::vector<std::string>{"diff", "--help"}),
                         [](const auto& command) { return command.param.size() == 1 ? "vif" : command.param.front(); });

TEST(Usage, LongDescriptionsInTheHelpAreAligned) {
  EXPECT_THAT(Vif({"check", "--help"}).output,
              HasSubstr("\n  error    count-mismatch               a count that differs from the number of"
                        "\n                                        groups, or a minimum above its maximum\n"));
}

TEST(Usage, VersionIsThatOfTheProject) {
  const ProgramResult result = Vif({"--version"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "vif " VIF_VERSION "\n");
}

TEST(Usage, NoCommandIsAUsageError) { ExpectUsageError(Vif({}), "no command given"); }

TEST(Usage, AnUnknownCommandIsNamed) { ExpectUsageError(Vif({"lst", "a.txt"}), "'lst'"); }

TEST(Usage, AnUnknownOptionIsNamed) { ExpectUsageError(Vif({"list", "--frmat", "a.txt"}), "--frmat"); }

TEST(Usage, AnUnknownFormatIsNamedWithTheKnownOnes) {
  ExpectUsageError(Vif({"list", "--format", "yaml", "a.txt"}), "yaml not in {table,json,csv}");
}

TEST(Usage, ListNeedsAFile) { ExpectUsageError(Vif({"list"}), "FILE is required"); }

TEST(Usage, GetNeedsAFile) { ExpectUsageError(Vif({"get"}), "FILE is required"); }

TEST(Usage, GetTakesAtMostThreeLocations) {
  ExpectUsageError(Vif({"get", "--component", "1", "--src-pdo", "1", "--snk-pdo", "1", "--router", "0", "a.txt"}),
                   "at most three location options");
}

TEST(Usage, ALocationOptionTakesANumber) {
  ExpectUsageError(Vif({"get", "--src-pdo=two", "a.txt"}), "--src-pdo takes a number or 'any', not 'two'");
}

TEST(Usage, ALocationOptionWithAnEqualsSignTakesANumber) {
  ExpectUsageError(Vif({"get", "--src-pdo=", "a.txt"}), "--src-pdo= takes a number or 'any'");
}

TEST(Usage, AFullDiskFailsHelpAndVersion) {
  for (const char* option : {"--help", "--version"}) {
    const ProgramResult result = Vif({option}, {.canWrite = false});
    EXPECT_EQ(result.status, 2) << option;
  }
}

TEST(Usage, ALocationOptionIsGivenOnce) {
  ExpectUsageError(Vif({"get", "--src-pdo", "1", "--src-pdo", "2", "a.txt"}), "--src-pdo");
}

TEST(Usage, AnInvalidPatternIsRefusedEvenIfNoFieldIsInThePlace) {
  ExpectUsageError(Vif({"get", "--router", "7", testsupport::Example("active-cable.txt"), "("}),
                   "the pattern '(' cannot be used: ");
}

TEST(Usage, HelpListsTheCheck) { EXPECT_THAT(Vif({"--help"}).output, HasSubstr("check ")); }

TEST(Usage, ShowNeedsAFile) { ExpectUsageError(Vif({"show"}), "FILE is required"); }

TEST(Usage, LineFeedsInAMessageDoNotBreakItsOneLine) {
  ExpectUsageError(Vif({"list", "a\nb\x1b[2J.txt"}), "a\\nb\\x1b[2J.txt");
}

}  // namespace

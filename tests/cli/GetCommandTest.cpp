// `vif get` as a user runs it.
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <gmock/gmock.h>

namespace {

using testing::HasSubstr;
using testsupport::Example;
using testsupport::ProgramResult;
using testsupport::TempDir;
using testsupport::Vif;

ProgramResult Get(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "get");
  return Vif(arguments);
}

void ExpectOutput(const ProgramResult& result, const std::string& output) {
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, output);
  EXPECT_EQ(result.error, "");
}

TEST(Get, PrintsTheValuesOneALineInTheOrderOfTheFile) {
  ExpectOutput(Get({Example("gan-charger-65w.txt"), "Src_PDO_Voltage"}), "100\n180\n300\n400\n");
}

TEST(Get, ThePatternMatchesWholeNamesInAnyLetterCase) {
  ExpectOutput(Get({"--src-pdo", "2", Example("gan-charger-65w.txt"), "src_pdo_(max_current|voltage)"}), "180\n300\n");
}

TEST(Get, WithoutAPatternAllNamesMatch) {
  const ProgramResult all = Get({"--src-pdo", "6", Example("gan-charger-65w.txt")});
  ExpectOutput(Get({"--src-pdo", "6", Example("gan-charger-65w.txt"), ""}), all.output);
  EXPECT_THAT(all.output, HasSubstr("210\n"));
}

TEST(Get, NumberPrintsTheValueAsANumber) {
  const TempDir dir;
  ExpectOutput(Get({"--number", dir.Write("a.txt", "PID: 0x1F\nXID: Yes\n").string()}), "31\n1\n");
}

TEST(Get, NumberIsADashWhereThereIsNone) {
  const TempDir dir;
  const ProgramResult result = Get({"--number", dir.Write("a.txt", "PID: 5\n$TID: \"7\"\n").string()});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "5\n-\n");
}

TEST(Get, WithNamePrintsNameAndPlaceSeparatedByTabs) {
  ExpectOutput(Get({"--with-name", "--src-pdo", "2", Example("gan-charger-65w.txt"), "Src_PDO_Voltage"}),
               "Src_PDO_Voltage\tComponent 1 \u00B7 SrcPdo 2\t180\n");
}

TEST(Get, UniquePrintsTheOneField) {
  ExpectOutput(Get({"--unique", Example("gan-charger-65w.txt"), "Num_Src_PDOs"}), "6\n");
}

TEST(Get, UniqueSaysHowManyThereAre) {
  const std::string file = Example("gan-charger-65w.txt");
  const ProgramResult result = Get({"--unique", file, "Src_PDO_Voltage"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.error, "vif: 4 fields in \"" + file + "\" matched with \"Src_PDO_Voltage\".\n");
}

TEST(Get, UniqueSaysThatThereIsNone) {
  const std::string file = Example("gan-charger-65w.txt");
  const ProgramResult result = Get({"--unique", file, "Snk_PDO_Voltage"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.error, "vif: Couldn't find field in \"" + file + "\" that matched with \"Snk_PDO_Voltage\".\n");
}

TEST(Get, NoMatchIsStatusOne) {
  const std::string file = Example("gan-charger-65w.txt");
  const ProgramResult result = Get({file, "Snk_.*"});
  EXPECT_EQ(result.status, 1);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.error, "vif: no field in \"" + file + "\" matches\n");
}

TEST(Get, AMissingFileIsAFailure) { EXPECT_EQ(Get({"/nonexistent/a.txt", "PID"}).status, 2); }

TEST(Get, ALocationOptionWithoutANumberMeansAny) {
  const std::string file = Example("gan-charger-65w.txt");
  const std::string all = "100\n180\n300\n400\n";
  ExpectOutput(Get({"--src-pdo", file, "Src_PDO_Voltage"}), all);
  ExpectOutput(Get({"--src-pdo", "any", file, "Src_PDO_Voltage"}), all);
  ExpectOutput(Get({"--src-pdo=any", file, "Src_PDO_Voltage"}), all);
  ExpectOutput(Get({file, "Src_PDO_Voltage", "--src-pdo"}), all);
}

TEST(Get, ALocationOptionWithoutANumberLeavesOutFieldsElsewhere) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "PID: 1\nSrc_PDO_Voltage2: 2\n").string();
  ExpectOutput(Get({"--src-pdo", file}), "2\n");
}

TEST(Get, ADoubleDashEndsTheOptions) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "PID: 1\n").string();
  ExpectOutput(Get({"--component", "1", "--", file, "PID"}), "1\n");
}

struct LocationCase {
  std::vector<std::string> options;
  std::string value;
};

class GetByLocation : public testing::TestWithParam<LocationCase> {};

TEST_P(GetByLocation, FindsTheFieldThere) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt",
                                     "PID: 1\n"
                                     "Src_PDO_Voltage2: 2\n"
                                     "Snk_PDO_Voltage2: 3\n"
                                     "SVID2_SOP: 4\n"
                                     "SVID2_Mode3_Enter_SOP: 5\n"
                                     "SVID2: 6\n"
                                     "SVID2_Mode3_Enter: 7\n"
                                     "USB4_Router_ID2: 8\n"
                                     "USB4_PCIe_Endpoint2_Vendor_ID3: 9\n")
                               .string();
  std::vector<std::string> arguments = GetParam().options;
  arguments.push_back(file);
  ExpectOutput(Get(arguments), GetParam().value);
}

INSTANTIATE_TEST_SUITE_P(
    EveryOption, GetByLocation,
    testing::Values(LocationCase{{"--component", "1"}, "1\n2\n3\n4\n5\n6\n7\n"},
                    LocationCase{{"--src-pdo", "2"}, "2\n"}, LocationCase{{"--snk-pdo", "2"}, "3\n"},
                    LocationCase{{"--sop-svid", "2"}, "4\n5\n"}, LocationCase{{"--sop-mode", "3"}, "5\n"},
                    LocationCase{{"--cable-svid", "2"}, "6\n7\n"}, LocationCase{{"--cable-mode", "3"}, "7\n"},
                    LocationCase{{"--router", "2"}, "8\n9\n"}, LocationCase{{"--endpoint", "3"}, "9\n"},
                    LocationCase{{"--component", "1", "--sop-svid", "2", "--sop-mode"}, "5\n"}));

TEST(Get, ControlCharactersOfAValueAreEscaped) {
  const TempDir dir;
  ExpectOutput(Get({dir.Write("a.txt", "$TID: \"a\x1b[2Jb\"\n").string()}), "a\\x1b[2Jb\n");
}

}  // namespace

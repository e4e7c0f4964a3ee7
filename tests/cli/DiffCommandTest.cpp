// `vif diff` as a user runs it.
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <cstddef>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;
using testsupport::Example;
using testsupport::Lines;
using testsupport::ProgramResult;
using testsupport::TempDir;
using testsupport::Vif;

/// Compares two text files, with further options.
ProgramResult Diff(const std::string& before, const std::string& after, std::vector<std::string> options = {}) {
  const TempDir dir;
  options.insert(options.begin(), "diff");
  options.push_back(dir.Write("a.txt", before).string());
  options.push_back(dir.Write("b.txt", after).string());
  return Vif(options);
}

/// The lines about fields and groups, without the summary and the findings.
std::vector<std::string> DiffLines(const std::string& before, const std::string& after) {
  std::vector<std::string> lines = Lines(Diff(before, after).output);
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (lines[i].empty()) lines.resize(i);
  }
  return lines;
}

Json DiffJson(const std::string& before, const std::string& after) {
  return Json::parse(Diff(before, after, {"--format", "json"}).output);
}

TEST(Diff, AFileAndItselfDoNotDiffer) {
  const ProgramResult result = Vif({"diff", Example("usb4-dock.xml"), Example("usb4-dock.xml")});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_EQ(result.output, "no differences\n");
}

TEST(Diff, TheTwoFormsOfOneProductDoNotDiffer) {
  const ProgramResult result = Vif({"diff", Example("gan-charger-65w.txt"), Example("gan-charger-65w.xml")});
  EXPECT_EQ(result.status, 0) << result.error;
  EXPECT_THAT(result.output, StartsWith("no differences\n"));
}

TEST(Diff, ShowsValuesInUnits) {
  const std::string pdo = "Src_PDO_Supply_Type2: 0\nSrc_PDO_Voltage2: ";
  EXPECT_THAT(DiffLines(pdo + "180\n", pdo + "240\n"),
              ElementsAre("Component 1", "  Source PDO 2: voltage 9 V \u2192 12 V (180 \u2192 240)"));
}

TEST(Diff, ShowsChoicesWithTheirTexts) {
  EXPECT_THAT(
      DiffLines("PD_Port_Type: 3\nUSB4_Supported: NO\nUSB_VID_SOP: 0xE0A7\nNum_Src_PDOs: 1\n",
                "PD_Port_Type: 4\nUSB4_Supported: YES\nUSB_VID_SOP: 0xE0A8\nNum_Src_PDOs: 2\n"),
      ElementsAre("Component 1", "  Num_Src_PDOs 1 \u2192 2", "  PD_Port_Type Provider Only \u2192 DRP (3 \u2192 4)",
                  "  USB4_Supported NO \u2192 YES", "  USB_VID_SOP 0xE0A7 \u2192 0xE0A8"));
}

TEST(Diff, GroupsByPlace) {
  EXPECT_THAT(DiffLines("$Vendor_Name: \"A\"\nPID_SOP: 1\nUSB4_Router_ID0: 1\nOdd: 1\n",
                        "$Vendor_Name: \"B\"\nPID_SOP: 2\nUSB4_Router_ID0: 2\nOdd: 2\n"),
              ElementsAre("In no group", "  Odd 1 \u2192 2", "File", "  Vendor_Name \"A\" \u2192 \"B\"", "Product",
                          "  Router 0: USB4_Router_ID 1 \u2192 2", "Component 1", "  PID_SOP 0x0001 \u2192 0x0002"));
}

TEST(Diff, AWholeGroupIsOneLine) {
  const std::string first = "Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 100\nSrc_PDO_Max_Current1: 300\n";
  const std::string second = "Src_PDO_Supply_Type2: 0\nSrc_PDO_Voltage2: 180\nSrc_PDO_Max_Current2: 300\n";
  EXPECT_THAT(DiffLines(first, first + second),
              ElementsAre("Component 1", "  Source PDO 2: added: Fixed, 9 V, 3 A, 27 W"));
  EXPECT_THAT(DiffLines(first + second, first),
              ElementsAre("Component 1", "  Source PDO 2: removed: Fixed, 9 V, 3 A, 27 W"));
}

TEST(Diff, GroupsThatAreOnlyRenumberedShareALine) {
  std::string before;
  std::string after = "Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 70\n";
  for (int pdo = 1; pdo <= 4; ++pdo) {
    for (const auto& [text, number] : {std::pair(&before, pdo), std::pair(&after, pdo + 1)}) {
      text->append("Src_PDO_Supply_Type" + std::to_string(number) + ": 0\nSrc_PDO_Voltage" + std::to_string(number) +
                   ": " + std::to_string(100 * pdo) + "\n");
    }
  }
  EXPECT_THAT(DiffLines(before, after),
              ElementsAre("Component 1", "  Source PDO 1: added: Fixed, 3.5 V", "  Source PDO 2 to 5: were 1 to 4"));
  EXPECT_THAT(Diff(before, after).output, HasSubstr("\n1 difference: 1 added\n"));
}

TEST(Diff, WhatHasMovedIsSaidToHaveMoved) {
  std::string before;
  std::string after;
  const std::vector<int> order = {3, 1, 2};
  for (int i = 0; i < 3; ++i) {
    const std::string number = std::to_string(i + 1);
    const std::string type = "Src_PDO_Supply_Type" + number + ": 0\nSrc_PDO_Voltage" + number + ": ";
    before += type + std::to_string((i + 1) * 100) + "\n";
    after += type + std::to_string(order[static_cast<std::size_t>(i)] * 100) + "\n";
  }
  EXPECT_THAT(DiffLines(before, after),
              ElementsAre("Component 1", "  Source PDO 1: moved, was Source PDO 3 (Fixed, 15 V)",
                          "  Source PDO 2 to 3: were 1 to 2"));
  EXPECT_EQ(Diff(before, after).status, 1);
}

TEST(Diff, TextsThatOnlyOneFileHasAreNamed) {
  EXPECT_THAT(DiffLines("PID_SOP: 1\n", "PID_SOP: 1\n$Vendor_Name: \"A\"\n$Model_Part_Number: \"X\"\n"),
              ElementsAre("File", "  added: Model_Part_Number \"X\"", "  added: Vendor_Name \"A\""));
}

TEST(Diff, PrefixesOfPdosAreLeftOutOnlyInPdosAndBeforeAName) {
  EXPECT_THAT(DiffLines("PID_SOP: 1\n", "PID_SOP: 1\nSrc_PDO_: 4\nSrc_PDO_Odd: 5\n"),
              ElementsAre("In no group", "  added: Src_PDO_ 4", "  added: Src_PDO_Odd 5"));
}

TEST(Diff, APdoWithoutASupplyTypeIsDescribedByItsFields) {
  EXPECT_THAT(DiffLines("PID_SOP: 1\n", "PID_SOP: 1\nSrc_PDO_Voltage7: 100\nSrc_PDO_Max_Current7: 300\n"),
              ElementsAre("Component 1", "  Source PDO 7: added, with 2 fields"));
}

/// An XML file of components with these labels.
std::string Components(const std::vector<std::string>& labels) {
  std::string xml = "<vif:VIF xmlns:vif=\"http://usb.org/VendorInfoFile.xsd\">";
  for (const std::string& label : labels) {
    xml += "<vif:Component><vif:Port_Label>" + label +
           "</vif:Port_Label><vif:Num_Src_PDOs value=\"0\">0</vif:Num_Src_PDOs>"
           "</vif:Component>";
  }
  return xml + "</vif:VIF>\n";
}

TEST(Diff, FindingsOfAnXmlFileFollowTheirComponent) {
  const std::string odd =
      "C1</vif:Port_Label><vif:Odd value=\"1\"/><vif:Num_Snk_PDOs>0</vif:Num_Snk_PDOs><vif:Port_Label>";
  const TempDir dir;
  const std::string before = dir.Write("a.xml", Components({odd})).string();
  const std::string after = dir.Write("b.xml", Components({"C0", odd})).string();
  EXPECT_THAT(Vif({"check", before}).output, AllOf(HasSubstr("[unknown-name]"), HasSubstr("[no-value]")));
  EXPECT_THAT(Vif({"diff", before, after}).output, AllOf(HasSubstr("was Component 1"), Not(HasSubstr("finding"))));
}

TEST(Diff, AWholeComponentIsNotTakenForAField) {
  const TempDir dir;
  const std::string before = dir.Write("a.xml", Components({"C1", "C2"})).string();
  const std::string after = dir.Write("b.xml", Components({"C0", "C1", "C2"})).string();
  EXPECT_THAT(Vif({"diff", before, after}).output,
              StartsWith("Component 1\n  added, with 2 fields (Port_Label \"C0\")\nComponent 2\n  was Component 1\n"
                         "Component 3\n  was Component 2\n\n1 difference: 1 added\n"));
}

TEST(Diff, EndsWithASummary) {
  const ProgramResult result = Diff("PID_SOP: 1\nXID_SOP: 5\n", "PID_SOP: 2\nNum_Src_PDOs: 1\n");
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, HasSubstr("\n\n3 differences: 1 changed, 1 added, 1 removed\n"));
  EXPECT_THAT(result.output, HasSubstr("  added: Num_Src_PDOs 1\n"));
  EXPECT_THAT(result.output, HasSubstr("  removed: XID_SOP 5\n"));
}

TEST(Diff, DescriptionsCountOnlyWhenAskedFor) {
  const std::string before = "PD_Port_Type: 3 ; Provider\n";
  const std::string after = "PD_Port_Type: 3 ; Source\n";
  EXPECT_EQ(Diff(before, after).status, 0);
  const ProgramResult result = Diff(before, after, {"--descriptions"});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, HasSubstr("PD_Port_Type description \"Provider\" \u2192 \"Source\"\n"));
}

TEST(Diff, NamesTheFindingsThatCameOrWent) {
  const ProgramResult result = Diff("PD_Port_Type: 3\nPID_SOP: 1\nPID_SOP: 1\n", "PD_Port_Type: 3\nPID_SOP: x\n");
  EXPECT_THAT(result.output, HasSubstr("fixed error: "));
  EXPECT_THAT(result.output, HasSubstr("[declared-twice]\n"));
  EXPECT_THAT(result.output, HasSubstr("new error: "));
  EXPECT_THAT(result.output, testing::EndsWith("1 finding fixed, 1 new\n"));
}

TEST(Diff, FindingsThatNobodyTouchedAreNeitherFixedNorNew) {
  const std::string duplicate = "PID_SOP: 1\nPID_SOP: 1\n";
  EXPECT_EQ(Diff(duplicate, "; a line more\n" + duplicate).output, "no differences\n");

  const std::string pdos = "Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 100\nSrc_PDO_Supply_Type2: 0\n";
  const std::string before = pdos + "Src_PDO_Voltage2: 400\nSrc_PDO_Voltage2: 400\n";
  const std::string after = pdos +
                            "Src_PDO_Voltage2: 180\nSrc_PDO_Supply_Type3: 0\n"
                            "Src_PDO_Voltage3: 400\nSrc_PDO_Voltage3: 400\n";
  const ProgramResult result = Diff(before, after);
  EXPECT_THAT(result.output, HasSubstr("Source PDO 3: was Source PDO 2\n"));
  EXPECT_THAT(result.output, Not(HasSubstr("declared-twice")));
}

TEST(Diff, JsonHasOldAndNewValues) {
  const Json json =
      DiffJson("Src_PDO_Voltage2: 180 ; 9 V\nPID_SOP: 1\n", "Src_PDO_Voltage2: 0xF0 ; 12 V\nXID_SOP: 1\n");
  EXPECT_EQ(json["files"].size(), 2U);
  EXPECT_EQ(json["same"], false);
  ASSERT_EQ(json["differences"].size(), 3U);
  const Json indexes = Json::parse(R"([{"location":"Component","index":1},{"location":"SrcPdo","index":2}])");
  const Json& changed = json["differences"][2];
  EXPECT_EQ(changed["kind"], "changed");
  EXPECT_EQ(changed["name"], "Src_PDO_Voltage");
  EXPECT_EQ(changed["indexes"], indexes);
  EXPECT_EQ(changed["old"]["value"], "180");
  EXPECT_EQ(changed["old"]["number"], 180);
  EXPECT_EQ(changed["old"]["description"], "9 V");
  EXPECT_EQ(changed["new"]["value"], "0xF0");
  EXPECT_EQ(changed["new"]["number"], 240);
  EXPECT_EQ(json["differences"][0]["kind"], "removed");
  EXPECT_EQ(json["differences"][0]["new"], nullptr);
  EXPECT_EQ(json["differences"][1]["kind"], "added");
  EXPECT_EQ(json["differences"][1]["old"], nullptr);
}

TEST(Diff, JsonOfFilesThatAreTheSame) {
  const Json json = DiffJson("PID_SOP: 0x64\n", "PID_SOP: 100\n");
  EXPECT_EQ(json["same"], true);
  EXPECT_EQ(json["differences"], Json::array());
  EXPECT_EQ(json["groups"], Json::array());
}

TEST(Diff, JsonOfAMoveIsAmongTheGroups) {
  const Json json = DiffJson("Src_PDO_Voltage2: 100\n", "Src_PDO_Voltage3: 100\n");
  EXPECT_EQ(json["same"], false);
  EXPECT_EQ(json["differences"], Json::array());
  ASSERT_EQ(json["groups"].size(), 1U);
  EXPECT_EQ(json["groups"][0]["kind"], "renumbered");
  EXPECT_EQ(json["groups"][0]["old"][1]["index"], 2);
  EXPECT_EQ(json["groups"][0]["new"][1]["index"], 3);
}

/// The fields of a list by name, place and value.
std::vector<std::string> FieldKeys(const Json& list) {
  std::vector<std::string> keys;
  for (const Json& field : list["fields"]) {
    keys.push_back(field["name"].get<std::string>() + field["indexes"].dump() + field["value"].dump());
  }
  return keys;
}

std::string KeyOf(const Json& side) {
  return side["name"].get<std::string>() + side["indexes"].dump() + side["value"].dump();
}

/// What `groups` says about the place of a field of the first file.
void Renumber(Json& indexes, const Json& groups) {
  const Json old = indexes;
  for (const Json& group : groups) {
    if (group["old"].is_null() || group["new"].is_null() || group["old"].size() > old.size()) continue;
    const std::size_t depth = group["old"].size();
    const Json outer(old.begin(), old.begin() + static_cast<std::ptrdiff_t>(depth));
    if (outer == group["old"]) indexes[depth - 1] = group["new"][depth - 1];
  }
}

/// Applies the JSON to the fields of the first file, which must give those of the second.
void ExpectApplied(const std::string& before, const std::string& after) {
  const Json json = Json::parse(Vif({"diff", "--format", "json", before, after}).output);
  Json first = Json::parse(Vif({"list", "--format", "json", before}).output);
  std::multiset<std::string> dropped;
  std::vector<std::string> result;
  for (const Json& difference : json["differences"]) {
    if (!difference["old"].is_null()) dropped.insert(KeyOf(difference["old"]));
    if (!difference["new"].is_null()) result.push_back(KeyOf(difference["new"]));
  }
  EXPECT_FALSE(dropped.empty());
  for (Json& field : first["fields"]) {
    const auto found = dropped.find(KeyOf(field));
    if (found != dropped.end()) {
      dropped.erase(found);
      continue;
    }
    Renumber(field["indexes"], json["groups"]);
    result.push_back(KeyOf(field));
  }
  EXPECT_TRUE(dropped.empty());
  EXPECT_THAT(result, testing::UnorderedElementsAreArray(
                          FieldKeys(Json::parse(Vif({"list", "--format", "json", after}).output))));
}

TEST(Diff, ApplyingTheJsonToTheFirstFileGivesTheSecond) {
  ExpectApplied(Example("gan-charger-65w.txt"), Example("dual-role-tablet.txt"));
}

/// Names that loading puts in no group, since it does not know them in lower case, but the vocabulary in two.
constexpr const char* kPlacedByVocabulary = "SVID1_num_modes_min_SOP: 1\nSVID2_num_modes_min_SOP: 1\n";
constexpr const char* kPlacedAndChanged = "SVID1_num_modes_min_SOP: 2\nSVID2_num_modes_min_SOP: 3\n";

TEST(Diff, ApplyingTheJsonWorksForFieldsThatOnlyTheVocabularyPlaces) {
  const TempDir dir;
  ExpectApplied(dir.Write("a.txt", kPlacedByVocabulary).string(), dir.Write("b.txt", kPlacedAndChanged).string());
}

TEST(Diff, JsonHasThePlaceInWhichAFieldIsCompared) {
  const Json json = DiffJson(kPlacedByVocabulary, kPlacedAndChanged);
  ASSERT_EQ(json["differences"].size(), 2U);
  for (std::size_t i = 0; i < 2; ++i) {
    const Json& difference = json["differences"][i];
    const Json place =
        Json::array({{{"location", "Component"}, {"index", 1}}, {{"location", "SopSvid"}, {"index", i + 1}}});
    EXPECT_EQ(difference["name"], "SVID_Num_Modes_Min_SOP");
    EXPECT_EQ(difference["indexes"], Json::array());
    EXPECT_EQ(difference["place"], place);
    EXPECT_EQ(difference["old"]["place"], place);
    EXPECT_EQ(difference["new"]["place"], place);
  }
}

TEST(Diff, EscapesWhatCouldControlATerminal) {
  const ProgramResult result = Diff("$Vendor_Name: \"A\"\n", "$Vendor_Name: \"\x1b[2J\"\nO\x1b[1m: 3\n");
  EXPECT_THAT(result.output, Not(HasSubstr("\x1b")));
  EXPECT_THAT(result.output, HasSubstr("\\x1b[2J"));
}

TEST(Diff, APipeHasNoColour) { EXPECT_THAT(Diff("PID_SOP: 1\n", "PID_SOP: 2\n").output, Not(HasSubstr("\x1b"))); }

TEST(Diff, PortsOfOneFile) {
  const ProgramResult result = Vif({"diff", "--ports", Example("two-port-laptop.xml")});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, StartsWith("Component 2, compared with Component 1\n"));
  EXPECT_THAT(result.output, HasSubstr("\n  SOP SVID 2: removed: 0xE94D\n"));
  EXPECT_THAT(result.output, Not(HasSubstr("Port_Label")));
}

TEST(Diff, ChosenPorts) {
  const std::string laptop = Example("two-port-laptop.xml");
  const ProgramResult result = Vif({"diff", "--ports", "--component", "2", "--component", "1", laptop});
  EXPECT_EQ(result.status, 1);
  EXPECT_THAT(result.output, StartsWith("Component 1, compared with Component 2\n"));
  const ProgramResult same = Vif({"diff", "--ports", "--component", "2", "--component", "2", laptop});
  EXPECT_EQ(same.status, 0);
  EXPECT_EQ(same.output, "Component 2, compared with Component 2\n  no differences\n");
}

TEST(Diff, AFileWithOnePortHasNothingToCompare) {
  const ProgramResult result = Vif({"diff", "--ports", Example("gan-charger-65w.txt")});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.output, "the file has only one component\n");
  const TempDir dir;
  EXPECT_EQ(Vif({"diff", "--ports", dir.Write("a.txt", "Odd: 1\n").string()}).output, "the file has no components\n");
  EXPECT_EQ(Vif({"diff", "--ports", dir.Write("a.xml", Components({"C0", "C1"})).string()}).output,
            "no two components are of the same kind\n");
}

TEST(Diff, JsonOfPorts) {
  const Json json = Json::parse(Vif({"diff", "--ports", "--format", "json", Example("two-port-laptop.xml")}).output);
  EXPECT_EQ(json["files"].size(), 1U);
  EXPECT_EQ(json["same"], false);
  ASSERT_EQ(json["ports"].size(), 1U);
  EXPECT_EQ(json["ports"][0]["component"], 2);
  EXPECT_EQ(json["ports"][0]["other"], 1);
  EXPECT_FALSE(json["ports"][0]["differences"].empty());
  const Json none = Json::parse(Vif({"diff", "--ports", "--format", "json", Example("active-cable.txt")}).output);
  EXPECT_EQ(none["same"], true);
  EXPECT_EQ(none["ports"], Json::array());
}

struct UsageCase {
  std::vector<std::string> arguments;
  std::string error;
};

class DiffUsage : public testing::TestWithParam<UsageCase> {};

TEST_P(DiffUsage, IsExplained) {
  std::vector<std::string> arguments = GetParam().arguments;
  arguments.insert(arguments.begin(), "diff");
  const ProgramResult result = Vif(arguments);
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_THAT(result.error, AllOf(StartsWith("vif: "), HasSubstr(GetParam().error)));
  EXPECT_EQ(Lines(result.error).size(), 1U);
}

INSTANTIATE_TEST_SUITE_P(
    All, DiffUsage,
    testing::Values(UsageCase{{"a.txt", "b.txt", "c.txt"}, "vif diff compares two files; 3 are given"},
                    UsageCase{{"a.txt"}, "vif diff compares two files; 1 is given"},
                    UsageCase{{"--ports", "a.txt", "b.txt"}, "--ports compares the ports of one file; 2 are given"},
                    UsageCase{{"--component", "1", "--component", "2", "a.txt", "b.txt"}, "needs --ports"},
                    UsageCase{{"--ports", "--component", "1", "a.txt"}, "--component must be given twice"},
                    UsageCase{{"--ports", "--component", "-1", "--component", "2", "a.txt"},
                              "--component takes the number of a component, not '-1' (see 'vif diff --help')"},
                    UsageCase{{"--ports", "--component", "1", "--component", "", "a.txt"}, "component, not '' (see"},
                    UsageCase{{"--ports", "--component", "1", "--component", "1.5", "a.txt"}, "not '1.5' (see"},
                    UsageCase{{"--ports", "--component", "99999999999999999999", "--component", "1", "a.txt"},
                              "not '99999999999999999999' (see"},
                    UsageCase{{}, "FILE"}, UsageCase{{"--format", "csv", "a.txt", "b.txt"}, "--format"},
                    UsageCase{{"missing.txt", "missing.txt"}, "missing.txt"},
                    UsageCase{{"--ports", "--component", "1", "--component", "9", Example("gan-charger-65w.txt")},
                              "gan-charger-65w.txt: there is no component 9"}));

class DiffOnTerminal : public testing::Test {
 protected:
  void SetUp() override {
    if (!testsupport::HasTerminals()) GTEST_SKIP() << testsupport::kNoTerminals;
  }
};

TEST_F(DiffOnTerminal, HasTheOldValueInRedAndTheNewOneInGreen) {
  const TempDir dir;
  const std::string before = dir.Write("a.txt", "USB4_Supported: NO\n").string();
  const std::string after = dir.Write("b.txt", "USB4_Supported: YES\n").string();
  const ProgramResult result = testsupport::VifOnTerminal({"diff", before, after}, 100);
  EXPECT_THAT(result.output, HasSubstr("\x1b[1mComponent 1\x1b[0m"));
  EXPECT_THAT(result.output, HasSubstr("\x1b[31mNO\x1b[0m \u2192 \x1b[32mYES\x1b[0m"));
}

}  // namespace

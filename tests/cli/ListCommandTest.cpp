// `vif list` as a user runs it.
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <VendorInfoFile.h>

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <algorithm>

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;
using testsupport::Example;
using testsupport::Lines;
using testsupport::ProgramResult;
using testsupport::TempDir;

ProgramResult List(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "list");
  return testsupport::Vif(arguments);
}

ProgramResult ListOnTerminal(const std::string& file, unsigned short columns) {
  return testsupport::VifOnTerminal({"list", file}, columns);
}

json ListJson(const std::string& file) {
  const ProgramResult result = List({"--format", "json", file});
  EXPECT_EQ(result.status, 0) << result.error;
  return json::parse(result.output);
}

size_t Characters(const std::string& utf8) {
  return static_cast<size_t>(std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

class ListExample : public testing::TestWithParam<std::string> {};

TEST_P(ListExample, JsonHoldsEveryFieldThatTheLibraryHolds) {
  const std::string file = Example(GetParam());
  const json listed = ListJson(file);
  const CVendorInfoFile vif(file);
  EXPECT_EQ(listed["files"], json::array({file}));
  EXPECT_EQ(listed["componentCount"], vif.ComponentCount());
  const VifFieldList fields = vif.GetFields();
  ASSERT_GT(fields->size(), 20U);
  ASSERT_EQ(listed["fields"].size(), fields->size());
  for (size_t i = 0; i < fields->size(); ++i) {
    const CVIFField& field = (*fields)[i];
    const json& entry = listed["fields"][i];
    EXPECT_EQ(entry["name"], field.Name());
    EXPECT_EQ(entry["value"], field.Value());
    EXPECT_EQ(entry["description"], field.Description());
    EXPECT_EQ(entry["numeric"], field.IsNumeric());
    EXPECT_EQ(entry["number"], field.IsNumeric() ? json(field.GetULongNumericValue()) : json()) << field.Name();
    EXPECT_EQ(entry["indexes"].size(), field.IndexCount());
  }
}

std::string ExampleName(const testing::TestParamInfo<std::string>& example) {
  std::string name = example.param.substr(0, example.param.find('.'));
  std::replace(name.begin(), name.end(), '-', '_');
  return name;
}

INSTANTIATE_TEST_SUITE_P(AllExamples, ListExample,
                         testing::Values("gan-charger-65w.txt", "dual-role-tablet.txt", "active-cable.txt"),
                         ExampleName);

TEST(ListJson, FieldHasItsMembersInTheirOrder) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "Src_PDO_Voltage2: 100 ; 5 V\n").string();
  const ProgramResult result = List({"--format", "json", file});
  EXPECT_THAT(result.output, HasSubstr(R"({"name":"Src_PDO_Voltage","value":"100","description":"5 V","numeric":true,)"
                                       R"("number":100,"indexes":[{"location":"Component","index":1},)"
                                       R"({"location":"SrcPdo","index":2}]})"));
}

TEST(ListJson, NumberIsNullWhenTheFieldIsNotNumeric) {
  const TempDir dir;
  const json listed = ListJson(dir.Write("a.txt", "$Vendor_Name: \"12\"\n").string());
  EXPECT_TRUE(listed["fields"][0]["number"].is_null());
}

TEST(ListJson, NumberIsNullWhenTheValueIsNotValid) {
  const TempDir dir;
  const json listed = ListJson(dir.Write("a.txt", "PID: 18446744073709551616\n").string());
  EXPECT_EQ(listed["fields"][0]["numeric"], true);
  EXPECT_TRUE(listed["fields"][0]["number"].is_null());
}

TEST(ListJson, NumberKeepsAll64Bits) {
  const TempDir dir;
  const json listed = ListJson(dir.Write("a.txt", "PID: 0xFFFFFFFFFFFFFFFE\n").string());
  EXPECT_EQ(listed["fields"][0]["number"].get<uint64_t>(), 0xFFFFFFFFFFFFFFFEU);
}

TEST(ListJson, IndexIsNullWhenTheNameHasNone) {
  const TempDir dir;
  const json listed = ListJson(dir.Write("a.txt", "Src_PDO_Voltage: 1\n").string());
  EXPECT_EQ(listed["fields"][0]["indexes"][1], json({{"location", "SrcPdo"}, {"index", nullptr}}));
}

TEST(ListJson, BytesThatAreNotUtf8BecomeReplacementCharacters) {
  const TempDir dir;
  const json listed = ListJson(dir.Write("a.txt", "$TID: \"a\xFFz\"\n").string());
  EXPECT_EQ(listed["fields"][0]["value"], "a\uFFFDz");
}

TEST(ListJson, FileNamesThatAreNotUtf8AreListedToo) {
#ifdef _WIN32
  GTEST_SKIP() << "file names are Unicode, and the command gets them as UTF-8";
#else
  const TempDir dir;
  const json listed = ListJson(dir.Write("n\xFF.txt", "PID: 1\n").string());
  EXPECT_THAT(listed["files"][0].get<std::string>(), HasSubstr("n\uFFFD.txt"));
  EXPECT_EQ(listed["fields"].size(), 1U);
#endif
}

TEST(ListJson, FileNamesOfAnyLanguageAreListed) {
  const TempDir dir;
  const std::string file = testsupport::NameOf(dir.Write(u8"Gr\u00F6\u00DFe \u96FB\u529B \U0001F50C.txt", "PID: 1\n"));
  const json listed = ListJson(file);
  EXPECT_EQ(listed["files"][0], file);
  EXPECT_EQ(listed["fields"].size(), 1U);
}

TEST(ListJson, AnEmptyFileIsAnEmptyList) {
  const TempDir dir;
  const json listed = ListJson(dir.Write("a.txt", "").string());
  EXPECT_EQ(listed["fields"], json::array());
  EXPECT_EQ(listed["componentCount"], 1);
}

TEST(List, ComponentNumbersContinueFromFileToFile) {
  const TempDir dir;
  const std::string first = dir.Write("a.txt", "PID: 1\n").string();
  const std::string second = dir.Write("b.txt", "PID: 2\n").string();
  const ProgramResult result = List({first, second});
  EXPECT_THAT(Lines(result.output),
              ElementsAre("LOCATION     NAME  VALUE  DESCRIPTION", "Component 1  PID   1", "Component 2  PID   2"));
}

TEST(ListTable, AlignsItsColumns) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt",
                                     "$Vendor_Name: \"Acme\" ; maker\n"
                                     "Src_PDO_Voltage2: 100 ; 5 V\n"
                                     "Src_PDO_Voltage: 100\n"
                                     "SVID2_Mode1_Enter_SOP: YES\n")
                               .string();
  EXPECT_THAT(Lines(List({file}).output),
              ElementsAre("LOCATION                                 NAME                 VALUE   DESCRIPTION",
                          "                                         $Vendor_Name         \"Acme\"  maker",
                          "Component 1 \u00B7 SrcPdo 2                   Src_PDO_Voltage      100     5 V",
                          "Component 1 \u00B7 SrcPdo ?                   Src_PDO_Voltage      100",
                          "Component 1 \u00B7 SopSvid 2 \u00B7 SopSvidMode 1  SVID_Mode_Enter_SOP  1       YES"));
}

TEST(ListTable, CutsNothingInAPipe) {
  const TempDir dir;
  const std::string description(500, 'd');
  const std::string file = dir.Write("a.txt", "PID: 1 ; " + description + "\n").string();
  EXPECT_THAT(List({file}).output, HasSubstr(description));
}

TEST(ListTable, OneLongCellDoesNotWidenAllOtherLines) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "$TID: \"" + std::string(5000, 'v') + "\"\nPID: 1 ; d\n").string();
  EXPECT_LT(Lines(List({file}).output).back().size(), 200U);
}

TEST(ListTable, ControlCharactersDoNotReachTheTerminal) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "$TID: \"a\x1b[31m\tb\xC2\x9B\" ; x\x07y\n").string();
  const std::string output = List({file}).output;
  EXPECT_THAT(output, HasSubstr("\"a\\x1b[31m\\tb\\x9b\""));
  EXPECT_THAT(output, HasSubstr("x\\x07y"));
}

TEST(ListTable, CharactersTakeUpAsManyColumnsAsTheyAreWide) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt",
                                     "$TID: \"abcd\" ; four columns\n"
                                     "$TID: \"\u96FB\u529B\" ; wide ideographs\n"
                                     "$TID: \"\uD55C\u30AB\" ; a wide syllable of Hangul, one of Katakana\n"
                                     "$TID: \"\uFF21bc\" ; a fullwidth letter\n"
                                     "$TID: \"\U0001F50Cbc\" ; a wide symbol beyond 16 bits\n"
                                     "$TID: \"e\u0301bcd\" ; a combining accent\n"
                                     "$TID: \"\u0E01\u0E34bcd\" ; a Thai vowel above its consonant\n"
                                     "$TID: \"a\u200D\uFE0Fbcd\" ; a joiner and a variation selector\n"
                                     "$TID: \"\U0001D400\u00DF\u03B1\u0434\" ; narrow, one of them beyond 16 bits\n")
                               .string();
  std::vector<std::string> lines = Lines(List({file}).output);
  ASSERT_EQ(lines.size(), 10U);
  lines.erase(lines.begin());
  for (const std::string& line : lines) {
    const size_t gap = line.rfind('"') + 1;
    EXPECT_EQ(line.find_first_not_of(' ', gap), gap + 2) << line;  // all values have the same width
  }
}

class ListOnTerminalOf : public testing::TestWithParam<unsigned short> {
 protected:
  void SetUp() override {
    if (!testsupport::HasTerminals()) GTEST_SKIP() << testsupport::kNoTerminals;
  }
};

TEST_P(ListOnTerminalOf, EveryLineFitsAndNamesItsField) {
  const ProgramResult result = ListOnTerminal(Example("gan-charger-65w.txt"), GetParam());
  EXPECT_EQ(result.status, 0);
  const std::vector<std::string> lines = Lines(result.output);
  EXPECT_GT(lines.size(), 20U);
  for (const std::string& line : lines) EXPECT_LE(Characters(line), GetParam()) << line;
}

INSTANTIATE_TEST_SUITE_P(Widths, ListOnTerminalOf, testing::Values(40, 60, 80, 132));

TEST(ListTable, CutsNothingThatFitsATerminal) {
  if (!testsupport::HasTerminals()) GTEST_SKIP() << testsupport::kNoTerminals;
  const TempDir dir;
  const std::string value(90, 'v');
  const std::string file = dir.Write("a.txt", "$TID: \"" + value + "\"\n").string();
  EXPECT_THAT(ListOnTerminal(file, 200).output, HasSubstr(value));
}

TEST(ListTable, EndsLinesThatAreTooLongForATerminalInAnEllipsis) {
  if (!testsupport::HasTerminals()) GTEST_SKIP() << testsupport::kNoTerminals;
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "PID: 1 ; " + std::string(100, 'd') + "\n").string();
  const std::string last = Lines(ListOnTerminal(file, 60).output).back();
  EXPECT_EQ(Characters(last), 60U);
  EXPECT_THAT(last, testing::EndsWith("d\u2026"));
}

TEST(ListCsv, HasAHeaderAndLinesThatEndInCrLf) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "Src_PDO_Voltage2: 0x64 ; 5 V\n").string();
  EXPECT_EQ(List({"--format", "csv", file}).output,
            "name,value,description,numeric,number,location1,index1,location2,index2,location3,index3\r\n"
            "Src_PDO_Voltage,0x64,5 V,true,100,Component,1,SrcPdo,2,,\r\n");
}

TEST(ListCsv, QuotesCommasQuotesAndLineEnds) {
  const TempDir dir;
  const std::string file = dir.Write("a.txt", "$TID: \"say \"x\", y\" ; one\rtwo\n").string();
  EXPECT_THAT(List({"--format", "csv", file}).output,
              HasSubstr("$TID,\"say \"\"x\"\", y\",\"one\rtwo\",false,,,,,,,\r\n"));
}

TEST(List, AMissingFileIsRefusedWithItsName) {
  const ProgramResult result = List({"/nonexistent/a.txt"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.output, "");
  EXPECT_EQ(result.error, "vif: VIF Does not exist. (name: /nonexistent/a.txt)\n");
}

TEST(List, AFileOfAnotherTypeIsRefusedWithItsName) {
  const TempDir dir;
  const std::string file = dir.Write("a.doc", "").string();
  const ProgramResult result = List({file});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "vif: " + file + ": Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)\n");
}

TEST(List, OneFileThatFailsFailsTheCommand) {
  const TempDir dir;
  const std::string good = dir.Write("a.txt", "PID: 1\n").string();
  const ProgramResult result = List({good, "/nonexistent/b.txt"});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.output, "");
}

TEST(List, AnEmptyFileNameIsRefused) {
  const ProgramResult result = List({""});
  EXPECT_EQ(result.status, 2);
  EXPECT_EQ(result.error, "vif: a file name is empty\n");
}

TEST(List, AFileNameIsNotAFormat) {
  const ProgramResult result = List({"/nonexistent/%s%n%d.txt"});
  EXPECT_EQ(result.error, "vif: VIF Does not exist. (name: /nonexistent/%s%n%d.txt)\n");
}

TEST(List, AFullDiskIsAFailure) {
  const ProgramResult result = testsupport::Vif({"list", Example("active-cable.txt")}, {.canWrite = false});
  EXPECT_EQ(result.status, 2);
  EXPECT_THAT(result.error, StartsWith("vif: cannot write the output: "));
}

}  // namespace

// `vif explain` as a user runs it.
#include "support/VifCommand.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <string>
#include <vector>

namespace {

using nlohmann::json;
using testing::ElementsAre;
using testing::HasSubstr;
using testsupport::Lines;
using testsupport::ProgramResult;

ProgramResult Explain(std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), "explain");
  return testsupport::Vif(arguments);
}

json ExplainJson(const std::string& name) { return json::parse(Explain({"--format", "json", name}).output); }

std::vector<std::string> Members(const json& object) {
  std::vector<std::string> names;
  for (const auto& [name, value] : object.items()) names.push_back(name);
  return names;
}

TEST(Explain, SaysWhatAFieldMeans) {
  const ProgramResult result = Explain({"PD_Port_Type"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(Lines(result.output).front(), "PD_Port_Type");
  EXPECT_THAT(result.output, HasSubstr("group       Component\n"));
  EXPECT_THAT(result.output, HasSubstr("3  Provider Only\n"));
}

TEST(Explain, TakesAnyLetterCaseAndIndexes) {
  const std::string explained = Explain({"Src_PDO_Voltage"}).output;
  EXPECT_NE(explained, "");
  EXPECT_EQ(Explain({"src_pdo_voltage"}).output, explained);
  EXPECT_EQ(Explain({"Src_PDO_Voltage3"}).output, explained);
}

TEST(Explain, SaysWhatAFindingMeans) {
  const ProgramResult result = Explain({"PDO-above-rating"});
  EXPECT_EQ(result.status, 0);
  EXPECT_EQ(Lines(result.output).front(), "pdo-above-rating");
  EXPECT_THAT(result.output, HasSubstr("severity    error\n"));
}

TEST(Explain, NamesTheSourcesOfAFinding) {
  EXPECT_THAT(Explain({"ocp-below-rating"}).output, HasSubstr("sources     180 real files "));
  EXPECT_THAT(Explain({"no-index"}).output, testing::Not(HasSubstr("sources")));
}

TEST(Explain, NamesTheFindingsAboutAField) {
  EXPECT_THAT(Explain({"PD_Power_As_Sink"}).output, HasSubstr("pdo-above-rating"));
  EXPECT_THAT(ExplainJson("PD_Power_As_Sink")["rules"].get<std::vector<std::string>>(),
              testing::Contains("pdo-above-rating"));
}

TEST(Explain, LinesFitAnOrdinaryTerminal) {
  for (const char* name : {"PD_Port_Type", "Captive_Cable", "Src_PD_OCP_UV_Threshold", "declared-twice"}) {
    for (const std::string& line : Lines(Explain({name}).output)) EXPECT_LE(line.size(), 80U) << line;
  }
}

TEST(Explain, ANameThatIsNotKnownIsStatusOneWithASuggestion) {
  const ProgramResult field = Explain({"PD_Port_Typ"});
  EXPECT_EQ(field.status, 1);
  EXPECT_EQ(field.output, "");
  EXPECT_EQ(field.error, "vif: there is no field or finding 'PD_Port_Typ'; did you mean 'PD_Port_Type'?\n");
  EXPECT_EQ(Explain({"declared-twise"}).error,
            "vif: there is no field or finding 'declared-twise'; did you mean 'declared-twice'?\n");
  EXPECT_EQ(Explain({"quite something else"}).error, "vif: there is no field or finding 'quite something else'\n");
}

TEST(Explain, NothingIsPrintedWhenOneOfTheNamesIsNotKnown) { EXPECT_EQ(Explain({"PD_Port_Type", "x"}).output, ""); }

TEST(Explain, WithoutANameListsTheFieldsByGroup) {
  const ProgramResult result = Explain({});
  EXPECT_EQ(result.status, 0);
  for (const char* name : {"SrcPdo\n", "Src_PDO_Voltage", "Router\n", "USB4_Router_ID", "Component\n"}) {
    EXPECT_THAT(result.output, HasSubstr(name));
  }
}

TEST(ExplainJson, HasTheMembersOfAField) {
  const json field = ExplainJson("pd_port_type");
  EXPECT_THAT(Members(field), testing::UnorderedElementsAre("name", "group", "declares", "type", "unit", "values",
                                                            "editions", "spellings", "rules", "confidence"));
  EXPECT_EQ(field["name"], "PD_Port_Type");
  EXPECT_EQ(field["group"], "Component");
  EXPECT_EQ(field["type"], "enumeration");
  EXPECT_EQ(field["unit"], nullptr);
  EXPECT_EQ(field["values"][3]["value"], 3);
  EXPECT_EQ(field["values"][3]["text"], "Provider Only");
  EXPECT_THAT(Members(field["editions"]), ElementsAre("first", "last"));
  EXPECT_EQ(ExplainJson("PD_Power_As_Sink")["unit"], "mW");
  EXPECT_EQ(ExplainJson("RP_Value")["spellings"][0]["name"], "Rp_Value");
}

TEST(ExplainJson, HasTheMembersOfAFinding) {
  const json rule = ExplainJson("declared-twice");
  EXPECT_EQ(rule["code"], "declared-twice");
  EXPECT_EQ(rule["severity"], "error");
  EXPECT_EQ(rule["editions"]["first"], nullptr);
  EXPECT_NE(rule["why"], "");
}

TEST(ExplainJson, IsOneLineForEachName) {
  const std::vector<std::string> lines = Lines(Explain({"--format", "json", "Captive_Cable", "no-index"}).output);
  ASSERT_EQ(lines.size(), 2U);
  EXPECT_EQ(json::parse(lines[0])["name"], "Captive_Cable");
  EXPECT_EQ(json::parse(lines[1])["code"], "no-index");
}

TEST(ExplainJson, WithoutANameHasAllGroups) {
  const json groups = json::parse(Explain({"--format", "json"}).output)["groups"];
  std::size_t fields = 0;
  for (const json& group : groups) fields += group["fields"].size();
  EXPECT_GE(fields, 271U);
}

}  // namespace

// `vif check --format sarif`: it uses SARIF 2.1.0 as its schema says.
#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <gmock/gmock.h>
#include <nlohmann/json.hpp>

#include <map>
#include <set>
#include <string>
#include <vector>

namespace {

using nlohmann::json;
using testing::HasSubstr;
using testing::StartsWith;
using testsupport::TempDir;

/// An object of the schema, as far as it is used: its members and which of them it must have. No object of the schema
/// may have members that the schema does not name.
struct Shape {
  std::map<std::string, json::value_t> members;
  std::set<std::string> required;
};

const Shape kLog = {
    {{"$schema", json::value_t::string}, {"version", json::value_t::string}, {"runs", json::value_t::array}},
    {"version", "runs"}};
const Shape kRun = {{{"tool", json::value_t::object}, {"results", json::value_t::array}}, {"tool"}};
const Shape kTool = {{{"driver", json::value_t::object}}, {"driver"}};
const Shape kDriver = {
    {{"name", json::value_t::string}, {"semanticVersion", json::value_t::string}, {"rules", json::value_t::array}},
    {"name"}};
const Shape kRule = {{{"id", json::value_t::string},
                      {"shortDescription", json::value_t::object},
                      {"fullDescription", json::value_t::object},
                      {"help", json::value_t::object},
                      {"defaultConfiguration", json::value_t::object}},
                     {"id"}};
const Shape kMessage = {{{"text", json::value_t::string}}, {"text"}};
const Shape kConfiguration = {{{"level", json::value_t::string}}, {}};
const Shape kResult = {{{"ruleId", json::value_t::string},
                        {"ruleIndex", json::value_t::number_unsigned},
                        {"level", json::value_t::string},
                        {"message", json::value_t::object},
                        {"locations", json::value_t::array}},
                       {"message"}};
const Shape kLocation = {{{"physicalLocation", json::value_t::object}, {"logicalLocations", json::value_t::array}}, {}};
const Shape kPhysical = {{{"artifactLocation", json::value_t::object}, {"region", json::value_t::object}}, {}};
const Shape kArtifact = {{{"uri", json::value_t::string}}, {}};
const Shape kRegion = {{{"startLine", json::value_t::number_unsigned}, {"startColumn", json::value_t::number_unsigned}},
                       {}};
const Shape kLogical = {{{"fullyQualifiedName", json::value_t::string}}, {}};

void ExpectShape(const json& object, const Shape& shape) {
  ASSERT_TRUE(object.is_object()) << object;
  for (const auto& [name, value] : object.items()) {
    const auto member = shape.members.find(name);
    ASSERT_NE(member, shape.members.end()) << name << " in " << object;
    EXPECT_EQ(value.type(), member->second) << name << " in " << object;
  }
  for (const std::string& name : shape.required) EXPECT_TRUE(object.contains(name)) << name << " in " << object;
}

void ExpectLevel(const json& level) { EXPECT_TRUE(level == "error" || level == "warning" || level == "note") << level; }

void ExpectValid(const json& rule) {
  ExpectShape(rule, kRule);
  for (const char* text : {"shortDescription", "fullDescription", "help"}) {
    ExpectShape(rule[text], kMessage);
    EXPECT_NE(rule[text]["text"], "") << rule;
  }
  ExpectShape(rule["defaultConfiguration"], kConfiguration);
  ExpectLevel(rule["defaultConfiguration"]["level"]);
}

void ExpectValidLocation(const json& location) {
  ExpectShape(location, kLocation);
  const json& physical = location["physicalLocation"];
  ExpectShape(physical, kPhysical);
  ExpectShape(physical["artifactLocation"], kArtifact);
  if (physical.contains("region")) {
    ExpectShape(physical["region"], kRegion);
    for (const auto& [name, value] : physical["region"].items()) EXPECT_GE(value, 1) << name;
  }
  if (location.contains("logicalLocations")) {
    for (const json& logical : location["logicalLocations"]) ExpectShape(logical, kLogical);
  }
}

void ExpectValidResult(const json& result, const json& rules) {
  ExpectShape(result, kResult);
  ExpectShape(result["message"], kMessage);
  ExpectLevel(result["level"]);
  ASSERT_LT(result["ruleIndex"], rules.size());
  EXPECT_EQ(rules[result["ruleIndex"].get<std::size_t>()]["id"], result["ruleId"]);
  ASSERT_EQ(result["locations"].size(), 1U);
  ExpectValidLocation(result["locations"][0]);
}

void ExpectValidLog(const json& log) {
  ExpectShape(log, kLog);
  EXPECT_EQ(log["version"], "2.1.0");
  ASSERT_EQ(log["runs"].size(), 1U);
  const json& run = log["runs"][0];
  ExpectShape(run, kRun);
  ExpectShape(run["tool"], kTool);
  const json& driver = run["tool"]["driver"];
  ExpectShape(driver, kDriver);
  for (const json& rule : driver["rules"]) ExpectValid(rule);
  for (const json& result : run["results"]) ExpectValidResult(result, driver["rules"]);
}

json Sarif(const TempDir& dir, std::vector<std::string> arguments) {
  arguments.insert(arguments.begin(), {"check", "--notes", "--format", "sarif"});
  return json::parse(testsupport::Vif(arguments, {.directory = dir.Path()}).output);
}

TEST(Sarif, IsValidWithoutFindings) {
  const TempDir dir;
  const json log = Sarif(dir, {testsupport::Example("gan-charger-65w.txt")});
  ExpectValidLog(log);
  EXPECT_GT(log["runs"][0]["tool"]["driver"]["rules"].size(), 18U);
}

TEST(Sarif, HasAResultForEachFinding) {
  const TempDir dir;
  dir.Write("a.txt", "PID: 1\nPID: 2\nMy_Own: 1\n");
  dir.Write("b.txt", "");
  const json log = Sarif(dir, {"a.txt", "b.txt"});
  ExpectValidLog(log);
  const json& results = log["runs"][0]["results"];
  ASSERT_EQ(results.size(), 3U);
  EXPECT_EQ(results[0]["ruleId"], "declared-twice");
  EXPECT_EQ(results[0]["level"], "error");
  const json& location = results[0]["locations"][0];
  EXPECT_EQ(location["physicalLocation"]["artifactLocation"]["uri"], "a.txt");
  EXPECT_EQ(location["physicalLocation"]["region"], json({{"startLine", 2}}));
  EXPECT_EQ(location["logicalLocations"][0]["fullyQualifiedName"], "PID");
  EXPECT_EQ(results[1]["level"], "warning");
  EXPECT_FALSE(results[2]["locations"][0]["physicalLocation"].contains("region"));
}

TEST(Sarif, HasTheColumnsOfXmlFiles) {
  const TempDir dir;
  const json log = Sarif(dir, {std::string(VIF_DOCS) + "/flawed-port.xml"});
  ExpectValidLog(log);
  const json region = log["runs"][0]["results"][0]["locations"][0]["physicalLocation"]["region"];
  EXPECT_EQ(region["startLine"], 4);
#ifndef _WIN32  // MSXML gives no columns
  EXPECT_EQ(region["startColumn"], 3);
#endif
}

TEST(Sarif, NamesFilesByUris) {
  const TempDir dir;
  dir.Write(u8"a b%\u00E4#.txt", "PID: 1\nPID: 2\n");
  const auto uri = [&](const std::string& name) {
    return Sarif(dir, {name})["runs"][0]["results"][0]["locations"][0]["physicalLocation"]["artifactLocation"]["uri"]
        .get<std::string>();
  };
  EXPECT_EQ(uri("a b%\u00E4#.txt"), "a%20b%25%C3%A4%23.txt");
  const std::string absolute = uri(testsupport::NameOf(dir.Path() / u8"a b%\u00E4#.txt"));
  EXPECT_THAT(absolute, StartsWith("file:///"));
  EXPECT_THAT(absolute, HasSubstr("/a%20b%25%C3%A4%23.txt"));
}

}  // namespace

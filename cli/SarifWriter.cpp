#include "FindingWriters.h"
#include "Json.h"
#include "Output.h"

#include <BaseUtilities/PathText.h>
#include <analysis/Rules.h>

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace cli {

using vifanalysis::Finding;
using vifanalysis::RuleInfo;
using vifanalysis::SeverityName;

namespace {

Json Text(std::string_view text) { return {{"text", text}}; }

Json RuleJson(const RuleInfo& rule) {
  return {
      {"id", rule.code},
      {"shortDescription", Text(rule.what)},
      {"fullDescription", Text(rule.why)},
      {"help", Text(rule.why)},
      {"defaultConfiguration", {{"level", SeverityName(rule.severity)}}},
  };
}

/// The index of the rule in the output, which describes all rules.
std::size_t IndexOf(const std::string& code) {
  const auto& rules = vifanalysis::Rules();
  return static_cast<std::size_t>(
      std::find_if(rules.begin(), rules.end(), [&](const RuleInfo& rule) { return rule.code == code; }) -
      rules.begin());
}

bool IsUnreserved(char c) {
  return (c >= '0' && c <= '9') || (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') ||
         std::string_view("-._~/").find(c) != std::string_view::npos;
}

std::string PercentEncoded(std::string_view text) {
  constexpr std::string_view digits = "0123456789ABCDEF";
  std::string encoded;
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (IsUnreserved(c)) {
      encoded += c;
    } else {
      encoded.append({'%', digits[byte >> 4U], digits[byte & 0xFU]});
    }
  }
  return encoded;
}

/// A file's name as a URI: relative as long as the name is, because a viewer looks for it in its own copy of the files.
std::string Uri(const std::string& fileName) {
  std::string name = fileName;  // NOLINT(performance-unnecessary-copy-initialization): changed on Windows
#ifdef _WIN32
  std::replace(name.begin(), name.end(), '\\', '/');
#endif
  if (!PathFromUtf8(fileName).is_absolute()) return PercentEncoded(name);
  return (name.starts_with('/') ? "file://" : "file:///") + PercentEncoded(name);
}

Json Location(const std::string& fileName, const Finding& finding) {
  Json physical = {{"artifactLocation", {{"uri", Uri(fileName)}}}};
  if (finding.line != 0) {
    physical["region"] = {{"startLine", finding.line}};
    if (finding.column != 0) physical["region"]["startColumn"] = finding.column;
  }
  Json location = {{"physicalLocation", physical}};
  if (!finding.element.empty()) {
    location["logicalLocations"] = Json::array({{{"fullyQualifiedName", finding.element}}});
  }
  return location;
}

Json Result(const std::string& fileName, const Finding& finding) {
  return {
      {"ruleId", finding.code},
      {"ruleIndex", IndexOf(finding.code)},
      {"level", SeverityName(finding.severity)},
      {"message", Text(finding.message)},
      {"locations", Json::array({Location(fileName, finding)})},
  };
}

Json Driver() {
  Json rules = Json::array();
  for (const RuleInfo& rule : vifanalysis::Rules()) rules.push_back(RuleJson(rule));
  return {{"name", "vif"}, {"semanticVersion", VIF_VERSION}, {"rules", rules}};
}

}  // namespace

void WriteFindingsAsSarif(const std::vector<CheckedFile>& files) {
  Write("{\"$schema\":\"https://json.schemastore.org/sarif-2.1.0.json\",\"version\":\"2.1.0\",\"runs\":[\n");
  Write("{\"tool\":" + Dump({{"driver", Driver()}}) + ",\n\"results\":[");
  const char* separator = "\n";
  for (const CheckedFile& file : files) {
    for (const Finding& finding : file.findings) {
      Write(separator + Dump(Result(file.name, finding)));
      separator = ",\n";
    }
  }
  Write("\n]}\n]}\n");
}

}  // namespace cli

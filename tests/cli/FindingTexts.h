// What `vif check` finds in a file, as short texts that read well in expectations.
#pragma once

#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace testsupport {

/// The answer of `vif check --format json` for the files. An answer that is no JSON ends the test.
inline nlohmann::json CheckJson(std::vector<std::string> files) {
  files.insert(files.begin(), {"check", "--format", "json"});
  return nlohmann::json::parse(Vif(files).output);
}

/// A finding as "3 error count-mismatch"; the line is "-" when there is none.
inline std::string FindingText(const nlohmann::json& finding) {
  const std::string line = finding["line"].is_null() ? "-" : std::to_string(finding["line"].get<std::size_t>());
  return line + ' ' + finding["severity"].get<std::string>() + ' ' + finding["code"].get<std::string>();
}

/// The findings in a file with that content.
/// \param name says by its extension which form the file has
inline nlohmann::json FindingsIn(const std::string& name, std::string_view content) {
  const TempDir dir;
  return CheckJson({dir.Write(name, content).string()})["files"][0]["findings"];
}

inline std::vector<std::string> FindingTexts(const nlohmann::json& findings) {
  std::vector<std::string> texts;
  for (const nlohmann::json& finding : findings) texts.push_back(FindingText(finding));
  return texts;
}

/// The messages alone.
inline std::vector<std::string> MessagesOf(const nlohmann::json& findings) {
  std::vector<std::string> texts;
  for (const nlohmann::json& finding : findings) texts.push_back(finding["message"]);
  return texts;
}

}  // namespace testsupport

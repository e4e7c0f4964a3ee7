// The findings of `vif check` as short texts for expectations.
#pragma once

#include "support/TempDir.h"
#include "support/VifCommand.h"

#include <nlohmann/json.hpp>

#include <string>
#include <string_view>
#include <vector>

namespace testsupport {

/// The output of `vif check --format json` for the files. Throws when it is not JSON.
inline nlohmann::json CheckJson(std::vector<std::string> files) {
  files.insert(files.begin(), {"check", "--format", "json"});
  return nlohmann::json::parse(Vif(files).output);
}

/// A finding as "3 error count-mismatch", with "-" instead of a line that is not known.
inline std::string FindingText(const nlohmann::json& finding) {
  const std::string line = finding["line"].is_null() ? "-" : std::to_string(finding["line"].get<std::size_t>());
  return line + ' ' + finding["severity"].get<std::string>() + ' ' + finding["code"].get<std::string>();
}

/// The codes of findings about the form of a file. Files written to bring one of these about declare next to
/// nothing, about which the other rules have a lot to say.
inline constexpr const char* kFormCodes =
    "wrong-extension,not-a-declaration,read-failed,not-valid,nothing-read,foreign-element,misplaced,declared-twice,"
    "no-number,no-value,count-mismatch,count-out-of-range,no-index,numbering-gap,no-field,text-in-group,"
    "byte-order-mark,number-partly-read,unknown-name,other-spelling,older-name,newer-field";

/// The findings about the form of a file with that name, whose extension gives the form, and that content.
inline nlohmann::json FindingsIn(const std::string& name, std::string_view content) {
  const TempDir dir;
  return CheckJson({"--only", kFormCodes, dir.Write(name, content).string()})["files"][0]["findings"];
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

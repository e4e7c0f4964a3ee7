#include "Baseline.h"

#include "Command.h"
#include "Json.h"

#include <BaseUtilities/PathText.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>
#include <vector>

namespace cli {

using vifanalysis::Finding;

namespace {

/// The name without its folders, with either system's separators: the earlier run may have been on the other system.
std::string BaseName(const std::string& fileName) { return fileName.substr(fileName.find_last_of("/\\") + 1); }

/// What distinguishes findings, as JSON has it: there, bytes that are not UTF-8 have been replaced.
std::string Key(const std::string& fileName, const std::string& code, const Json& element, const std::string& message) {
  return Dump(Json::array({BaseName(fileName), code, element, vifanalysis::StableMessage(code, message)}));
}

std::string Read(const std::string& fileName) {
  const std::filesystem::path path = PathFromUtf8(fileName);
  std::error_code error;
  if (!std::filesystem::is_regular_file(path, error)) throw Failure("--baseline: there is no file \"" + fileName + '"');
  std::ifstream file(path, std::ios::binary);
  std::string content{std::istreambuf_iterator<char>(file), {}};
  if (!file) throw Failure("--baseline: \"" + fileName + "\" cannot be read");
  return content;
}

/// The findings of all files in the JSON.
std::set<std::string> KnownFindings(const Json& json) {
  std::set<std::string> known;
  for (const Json& file : json.at("files")) {
    const std::string name = file.at("file").get<std::string>();
    for (const Json& finding : file.at("findings")) {
      known.insert(Key(name, finding.at("code").get<std::string>(), finding.at("element"),
                       finding.at("message").get<std::string>()));
    }
  }
  return known;
}

}  // namespace

CBaseline::CBaseline(const std::string& fileName) {
  try {
    m_known = KnownFindings(Json::parse(Read(fileName)));
  } catch (const Json::exception&) {
    throw Failure("--baseline: \"" + fileName + "\" is not the output of 'vif check --format json'");
  }
}

void CBaseline::RemoveFrom(CheckedFile& file) const {
  std::erase_if(file.findings, [&](const Finding& finding) {
    const Json element = finding.element.empty() ? Json() : Json(finding.element);
    return m_known.contains(Key(file.name, finding.code, element, finding.message));
  });
}

}  // namespace cli

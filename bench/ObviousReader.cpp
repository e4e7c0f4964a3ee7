#include "ObviousReader.h"

#include "VIFFieldDefs.h"

#include <array>
#include <cerrno>
#include <cstddef>
#include <cstdint>
#include <cwchar>
#include <fstream>
#include <optional>
#include <regex>
#include <string>

namespace bench {

namespace {

using Place = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

constexpr std::uint64_t kComponent = 1;
constexpr const char* kBlanks = " \t\r\n";

struct SplitLine {
  std::string content;
  std::string comment;
};

/// Where the comment begins: at the first semicolon, unless that is between quotes.
std::size_t FindComment(const std::string& text) {
  std::size_t cut = text.find(';');
  const std::size_t firstQuote = text.find('"');
  if (cut == std::string::npos || firstQuote == std::string::npos) return cut;
  const std::size_t afterLastQuote = text.rfind('"') + 1;
  if (cut < firstQuote || cut > afterLastQuote) return cut;
  do {
    cut = text.find_first_not_of(';', cut + 1);
  } while (cut != std::string::npos && cut > firstQuote && cut < afterLastQuote);
  return cut;
}

SplitLine Split(const std::string& line) {
  const std::size_t begin = line.find_first_not_of(kBlanks);
  if (begin == std::string::npos || line[begin] == ';') return {};
  const std::string text = line.substr(begin, line.find_last_not_of(kBlanks) + 1 - begin);
  const std::size_t cut = FindComment(text);
  if (cut == std::string::npos) return {text, std::string()};
  std::string content = text.substr(0, cut);
  content.erase(content.find_last_not_of(kBlanks) + 1);
  std::string comment = text.substr(cut);
  comment.erase(0, comment.find_first_not_of(" \t\r\n;"));
  return {content, comment};
}

std::uint64_t Captured(const std::wsmatch& match, std::size_t group) {
  if (group >= match.size() || match.length(group) == 0) return CVIFField::INDEX_NOT_SPECIFIED;
  errno = 0;
  const std::uint64_t number = std::wcstoull(match.str(group).c_str(), nullptr, 10);
  return errno == 0 ? number : CVIFField::INDEX_NOT_SPECIFIED;
}

std::uint64_t NumberAt(EVifLocation location, const std::wsmatch& match) {
  switch (location) {
    case eVifLocVif:
    case eVifLocAppVersion:
    case eVifLocProduct: return 0;
    case eVifLocComponent: return kComponent;
    case eVifLocRouterPcie:
    case eVifLocSopSvidMode:
    case eVifLocCableSvidMode: return Captured(match, 2);
    default: return Captured(match, 1);
  }
}

/// Replaces a name with that of the first definition that matches it, and returns its place.
Place Resolve(std::string& name) {
  Place place;
  place.fill(CVIFField::UNSPECIFIED_INDEX);
  const std::wstring wideName(name.begin(), name.end());  // ASCII, as the line patterns ensure
  for (const VifFieldDef& definition : VifFieldDefs::GetVifFieldDefs()) {
    std::wsmatch match;
    if (!std::regex_match(wideName, match, definition.pattern)) continue;
    const std::wstring canonical = definition.name;
    name.assign(canonical.begin(), canonical.end());
    std::size_t slot = 0;
    for (const EVifLocation location : definition.locations) {
      if (location != eVifLocUnset) place[slot++] = {location, NumberAt(location, match)};
    }
    break;
  }
  return place;
}

std::optional<CVIFField> ReadLine(const std::string& line) {
  const SplitLine split = Split(line);
  if (split.content.empty()) return std::nullopt;

  const bool isString = split.content.front() == '$';
  const std::regex pattern(isString ? R"re(^(\$[[:alnum:]_']+)\s*:\s*"(.*)"$)re"
                                    : R"re(^([[:alnum:]_']+)\s*:\s*(0x[[:xdigit:]]+|[[:digit:]]+|YES|NO)$)re",
                           std::regex_constants::ECMAScript | std::regex_constants::icase);
  std::cmatch match;
  if (!std::regex_match(split.content.c_str(), match, pattern)) return std::nullopt;

  std::string name = match[1];
  std::string value = match[2];
  std::string description = split.comment;
  if (!isString && (value == "YES" || value == "yes")) {
    value.assign("1");
    description.assign("YES");
  } else if (!isString && (value == "NO" || value == "no")) {
    value.assign("0");
    description.assign("NO");
  }
  const Place place = Resolve(name);
  return CVIFField(!isString, name, value, description, place);
}

}  // namespace

std::vector<CVIFField> ReadObviously(const std::filesystem::path& path) {
  std::vector<CVIFField> fields;
  std::ifstream stream(path);
  for (std::string line; std::getline(stream, line);) {
    std::optional<CVIFField> field = ReadLine(line);
    if (field) fields.push_back(*std::move(field));
  }
  return fields;
}

}  // namespace bench

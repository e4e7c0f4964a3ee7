#include "HelpText.h"

#include "Lines.h"

#include <cstddef>

namespace manual {

namespace {

constexpr std::string_view kIndent = "  ";

std::pair<std::string, std::string> SplitRow(std::string_view line) {
  line.remove_prefix(kIndent.size());
  const std::size_t gap = line.find(kIndent);
  if (gap == std::string_view::npos) return {std::string(line), {}};
  return {std::string(line.substr(0, gap)), std::string(line.substr(line.find_first_not_of(' ', gap)))};
}

}  // namespace

std::vector<HelpSection> ParseHelp(std::string_view footer) {
  std::vector<HelpSection> sections(1);
  for (const std::string_view line : LinesOf(footer)) {
    if (line.empty()) continue;
    if (line.starts_with(kIndent)) {
      sections.back().rows.push_back(SplitRow(line));
    } else if (line.starts_with(kExitStatus) && line.substr(kExitStatus.size()).starts_with(": ")) {
      sections.push_back({std::string(kExitStatus), {std::string(line.substr(kExitStatus.size() + 2))}, {}});
    } else if (line.ends_with(':')) {
      sections.push_back({std::string(line.substr(0, line.size() - 1)), {}, {}});
    } else if (sections.back().title.empty()) {
      sections.back().paragraphs.emplace_back(line);
    } else {  // text after a section belongs to none
      sections.push_back({{}, {std::string(line)}, {}});
    }
  }
  return sections;
}

}  // namespace manual

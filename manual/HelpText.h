// The part of a command's help that follows the options, taken apart.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace manual {

/// A section of the help.
struct HelpSection {
  std::string title;                                      ///< "Formats"; empty for the text before all sections
  std::vector<std::string> paragraphs;                    ///< text
  std::vector<std::pair<std::string, std::string>> rows;  ///< names with what they mean; for examples, commands alone
};

/// The title of the section on exit statuses.
inline constexpr std::string_view kExitStatus = "Exit status";

/// Takes a footer apart. A paragraph that begins with `kExitStatus` and a colon is a section, and so are indented lines
/// after a line that ends in a colon. Anything else is text.
std::vector<HelpSection> ParseHelp(std::string_view footer);

}  // namespace manual

#include "HelpFormatter.h"

#include <sstream>
#include <utility>

namespace cli {

namespace {

constexpr std::size_t kDescriptionColumn = 20;

/// Words, broken into lines of that width at most.
std::string Wrap(std::string_view text, std::size_t width, const std::string& lineBreak) {
  std::istringstream words{std::string(text)};
  std::string wrapped;
  std::string word;
  std::size_t used = 0;
  while (words >> word) {
    const bool fits = used == 0 || used + 1 + word.size() <= width;
    if (used != 0) wrapped += fits ? " " : lineBreak;
    used = fits && used != 0 ? used + 1 + word.size() : word.size();
    wrapped += word;
  }
  return wrapped;
}

}  // namespace

std::string WrapHelp(std::string_view text, std::size_t column) {
  return Wrap(text, kHelpWidth - column, '\n' + std::string(column, ' '));
}

CHelpFormatter::CHelpFormatter() {
  column_width(kDescriptionColumn);
  label("SUBCOMMAND", "COMMAND ...");
}

std::string CHelpFormatter::make_option_desc(const CLI::Option* option) const {
  return Wrap(option->get_description(), kHelpWidth - kDescriptionColumn, "\n");  // CLI11 indents what follows
}

std::string CHelpFormatter::make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const {
  // CLI11 puts two empty lines between groups of options.
  return CLI::detail::find_and_replace(Formatter::make_help(app, std::move(name), mode), "\n\n\n", "\n\n");
}

}  // namespace cli

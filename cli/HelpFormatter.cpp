#include "HelpFormatter.h"

#include <cstddef>
#include <sstream>
#include <utility>

namespace cli {

namespace {

constexpr std::size_t kWidth = 80;
constexpr std::size_t kDescriptionColumn = 20;

std::string Wrap(const std::string& line) {
  if (line.size() <= kWidth) return line;
  const std::size_t gap = line.rfind("  ");
  const std::size_t column = gap != std::string::npos ? gap + 2 : 0;
  std::string wrapped = line.substr(0, column);
  std::istringstream words(line.substr(column));
  std::size_t used = column;
  std::string word;
  while (words >> word) {
    if (used > column && used + 1 + word.size() > kWidth) {
      wrapped.append("\n").append(column, ' ');
      used = column;
    }
    if (used > column) wrapped += ' ';
    used += (used > column ? 1 : 0) + word.size();
    wrapped += word;
  }
  return wrapped;
}

}  // namespace

CHelpFormatter::CHelpFormatter() {
  column_width(kDescriptionColumn);
  label("SUBCOMMAND", "COMMAND ...");
}

std::string CHelpFormatter::make_help(const CLI::App* app, std::string name, CLI::AppFormatMode mode) const {
  std::istringstream lines(Formatter::make_help(app, std::move(name), mode));
  std::string help;
  std::string line;
  bool isAfterEmptyLine = false;
  while (std::getline(lines, line)) {
    // CLI11 puts two empty lines between groups of options.
    if (!line.empty() || !isAfterEmptyLine) help.append(Wrap(line)).append("\n");
    isAfterEmptyLine = line.empty();
  }
  return help;
}

}  // namespace cli

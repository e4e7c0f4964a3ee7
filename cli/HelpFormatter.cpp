#include "HelpFormatter.h"

#include <cstddef>
#include <sstream>
#include <string_view>
#include <vector>

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

/// Two columns: what something is called, and what it does.
std::string Row(const std::string& name, const std::string& description) {
  std::string row = "  " + name;
  if (row.size() >= kDescriptionColumn) row += '\n';
  const std::size_t used = row.ends_with('\n') ? 0 : row.size();
  return row.append(kDescriptionColumn - used, ' ') + description + '\n';
}

/// The name of an option or a positional, and what it takes.
std::string NameOf(const CLI::Option& option) {
  const std::string& text = option.get_option_text();
  std::string name = option.get_name(option.get_positional(), !option.get_positional());
  if (text.find_first_not_of(' ') != std::string::npos) name.append(" ").append(text);
  return name;
}

std::string Section(const std::string& title, const std::vector<const CLI::Option*>& options) {
  if (options.empty()) return {};
  std::string section = '\n' + title + ":\n";
  for (const CLI::Option* option : options) section += Row(NameOf(*option), option->get_description());
  return section;
}

std::vector<const CLI::Option*> Positionals(const CLI::App& app) {
  return app.get_options([](const CLI::Option* option) { return option->get_positional(); });
}

/// The group of options that have not been given another, whose name differs in letter case between versions of CLI11.
bool IsGroupOfOptions(std::string_view group) { return group == "Options" || group == "OPTIONS"; }

std::string Options(const CLI::App& app) {
  std::string sections;
  for (const std::string& group : app.get_groups()) {
    const auto options = app.get_options(
        [&](const CLI::Option* option) { return option->nonpositional() && option->get_group() == group; });
    sections += Section(IsGroupOfOptions(group) ? "Options" : group, options);
  }
  return sections;
}

std::string Usage(const CLI::App& app, const std::string& name) {
  std::string usage = "Usage: " + name + " [OPTIONS]";
  for (const CLI::Option* option : Positionals(app)) {
    const bool isMany = option->get_expected_max() > 1;
    const std::string value = option->get_name(true) + (isMany ? "..." : "");
    usage += option->get_required() ? ' ' + value : " [" + value + ']';
  }
  return usage + (app.get_require_subcommand_min() > 0 ? " COMMAND ...\n" : "\n");
}

std::string Commands(const CLI::App& app) {
  const std::vector<const CLI::App*> commands = app.get_subcommands([](const CLI::App*) { return true; });
  if (commands.empty()) return {};
  std::string section = "\nCommands:\n";
  for (const CLI::App* command : commands) section += Row(command->get_name(), command->get_description());
  return section;
}

}  // namespace

std::string CHelpFormatter::make_help(const CLI::App* app, std::string name, CLI::AppFormatMode) const {
  std::istringstream lines(app->get_description() + '\n' + Usage(*app, name) +
                           Section("Positionals", Positionals(*app)) + Options(*app) + Commands(*app) + '\n' +
                           app->get_footer() + '\n');
  std::string help;
  std::string line;
  while (std::getline(lines, line)) help.append(Wrap(line)).append("\n");
  return help;
}

}  // namespace cli

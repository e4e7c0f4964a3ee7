#include "Commands.h"

#include <Application.h>
#include <Values.h>
#include <CLI/CLI.hpp>

#include <cstddef>
#include <memory>

namespace manual {

namespace {

/// The group of ordinary options, whose name differs in letter case between versions of CLI11.
bool IsOrdinary(const std::string& group) { return group == "Options" || group == "OPTIONS"; }

std::string WithoutBlanks(std::string text) {
  std::erase(text, ' ');
  return text;
}

Option ReadOption(const CLI::Option& option) {
  Option read;
  if (option.get_positional()) {
    read.names.push_back(option.get_name(true));
  } else {
    for (const std::string& name : option.get_snames()) read.names.push_back('-' + name);
    for (const std::string& name : option.get_lnames()) read.names.push_back("--" + name);
  }
  read.value = WithoutBlanks(option.get_option_text());
  read.kind = option.get_type_name();
  read.description = option.get_description();
  read.group = IsOrdinary(option.get_group()) ? "" : option.get_group();
  read.isRepeatable = option.get_expected_max() > 1;
  read.isRequired = option.get_required();
  return read;
}

Command ReadCommand(const CLI::App& app, const std::string& name) {
  Command command = {name, app.get_description(), app.get_footer(), {}, {}};
  for (const CLI::Option* option : app.get_options()) {
    (option->get_positional() ? command.positionals : command.options).push_back(ReadOption(*option));
  }
  return command;
}

}  // namespace

std::vector<Command> ReadCommands() {
  cli::Status status = cli::kDone;
  const std::unique_ptr<CLI::App> app = cli::MakeApplication(status);
  std::vector<Command> commands = {ReadCommand(*app, "")};
  for (const CLI::App* command : app->get_subcommands([](const CLI::App*) { return true; })) {
    commands.push_back(ReadCommand(*command, command->get_name()));
  }
  return commands;
}

std::vector<std::string> ChoicesOf(const std::string& kind) {
  if (kind.find(cli::kChoiceSeparator) == std::string::npos) return {};
  std::vector<std::string> choices(1);
  for (const char c : kind) {
    if (c == cli::kChoiceSeparator) {
      choices.emplace_back();
    } else {
      choices.back() += c;
    }
  }
  return choices;
}

}  // namespace manual

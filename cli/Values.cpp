#include "Values.h"

#include <CLI/CLI.hpp>

namespace cli {

CLI::Option* AddChoice(CLI::App& command, const char* name, std::string& value, const char* description,
                       const std::vector<std::string>& choices) {
  std::string kind;
  for (const std::string& choice : choices) {
    if (!kind.empty()) kind += kChoiceSeparator;
    kind += choice;
  }
  return command.add_option(name, value, description)
      ->check(CLI::IsMember(choices).description(""))  // or it would be part of the type name
      ->type_name(kind);
}

CLI::Option* AddFormat(CLI::App& command, std::string& format, const char* description,
                       const std::vector<std::string>& formats) {
  return AddChoice(command, "--format", format, description, formats)->option_text("FORMAT");
}

}  // namespace cli

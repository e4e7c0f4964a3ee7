// The commands of `vif` with their options and help, as plain data.
#pragma once

#include <string>
#include <vector>

namespace manual {

/// An option or a positional.
struct Option {
  std::vector<std::string> names;  ///< "-o" and "--output"; only "FILE" for a positional
  std::string value;               ///< what it takes: "FORMAT", "[N]" if that may be left out, or empty
  std::string kind;                ///< what it takes, as in `cli/Values.h`
  std::string description;         ///< without a full stop
  std::string group;               ///< the heading in the help; empty for that of ordinary options
  bool isRepeatable = false;       ///< whether it can be given several times
  bool isRequired = false;         ///< whether it must be given
};

/// A command, or the program itself.
struct Command {
  std::string name;         ///< "check"; empty for the program itself
  std::string description;  ///< as in the list of commands
  std::string footer;       ///< what the help says after the options
  std::vector<Option> options;
  std::vector<Option> positionals;
};

/// The program itself, then its commands in the order of the help.
std::vector<Command> ReadCommands();

/// The words that an option with that kind takes; empty for one that takes something else.
std::vector<std::string> ChoicesOf(const std::string& kind);

}  // namespace manual

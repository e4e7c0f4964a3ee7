// The parts of manual pages that come from the help of the commands.
#pragma once

#include "Commands.h"

#include <string>
#include <vector>

namespace manual {

/// All commands, each with its description.
std::string CommandList(const std::vector<Command>& commands);

/// How a command is called.
std::string Synopsis(const Command& command);

/// The help's text.
std::string Description(const Command& command);

/// The same as a continuation of a sentence that begins with the command's name.
std::string DescriptionAfterName(const Command& command);

/// Positionals and options; those of other groups under headings.
std::string OptionLists(const Command& command);

/// The rows of a section of the help.
std::string RowList(const Command& command, const std::string& section);

/// The exit statuses, each with its meaning.
std::string ExitStatus(const Command& command);

}  // namespace manual

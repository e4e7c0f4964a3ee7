// Runs a program and keeps what it prints.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace testsupport {

struct ProgramResult {
  int status = -1;     ///< the exit status; 128 plus the signal's number when one ended it
  std::string output;  ///< standard output
  std::string error;   ///< standard error; empty when the program ran on a terminal, which shows both
};

/// Runs a program with its output in pipes.
/// \param command the program's path and its arguments
ProgramResult RunProgram(const std::vector<std::string>& command);

/// Whether RunOnTerminal can work here: a chroot may have no pseudo-terminals.
bool HasTerminals();

/// Runs a program on a terminal of that many columns.
ProgramResult RunOnTerminal(const std::vector<std::string>& command, unsigned short columns);

/// The same with somebody who types, and then ends the input.
/// \param typed short text of whole lines; the terminal shows it like all that is typed
ProgramResult RunOnTerminal(const std::vector<std::string>& command, unsigned short columns, const std::string& typed);

/// The lines of a text, without their line ends (LF, or the CR LF that a terminal makes of it).
std::vector<std::string> Lines(const std::string& text);

}  // namespace testsupport

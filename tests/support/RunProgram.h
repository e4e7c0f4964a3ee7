// Runs a program and captures its output.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace testsupport {

struct ProgramResult {
  int status = -1;     ///< the exit status; on POSIX systems 128 plus the number of the signal that ended it
  std::string output;  ///< standard output
  std::string error;   ///< standard error; empty when the program ran on a terminal, which shows both
};

/// The environment in which a program starts.
struct ProgramSetting {
  std::filesystem::path directory = {};  ///< where it runs; the test's own directory when empty
  // Its own initialiser lets designated initialisers leave it out.
  std::string input = {};  ///< standard input: short text, then end of file NOLINT(readability-redundant-member-init)
  bool canWrite = true;    ///< whether standard output can be written to; if not, it is like a full disk
};

/// Runs a program with its output in pipes.
/// \param command the program's path and its arguments, UTF-8 on Windows
ProgramResult RunProgram(const std::vector<std::string>& command, const ProgramSetting& setting = {});

/// A path as a command-line argument.
std::string NameOf(const std::filesystem::path& path);

/// Whether RunOnTerminal works here: a chroot may have no pseudo-terminals.
bool HasTerminals();

/// Why it does not.
inline constexpr const char* kNoTerminals = "there are no pseudo-terminals here";

/// Runs a program on a terminal with that many columns.
ProgramResult RunOnTerminal(const std::vector<std::string>& command, unsigned short columns);

/// The same with somebody who types and then ends the input.
/// \param typed short text of whole lines, which the terminal echoes
ProgramResult RunOnTerminal(const std::vector<std::string>& command, unsigned short columns, const std::string& typed);

/// The lines of a text, without their line ends (LF, or the CR LF that a terminal turns it into).
std::vector<std::string> Lines(const std::string& text);

}  // namespace testsupport

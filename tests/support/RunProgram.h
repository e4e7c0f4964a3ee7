// Runs a program and keeps what it prints.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>
#include <vector>

namespace testsupport {

struct ProgramResult {
  int status = -1;     ///< the exit status; on POSIX systems 128 plus the signal's number when one ended it
  std::string output;  ///< standard output
  std::string error;   ///< standard error; empty when the program ran on a terminal, which shows both
};

/// What a program finds when it starts.
struct ProgramSetting {
  std::filesystem::path directory = {};  ///< where it runs; the test's own directory when empty
  // With an initialiser of its own, it may be left out where others are named.
  std::string input = {};  ///< standard input: short text, and then its end NOLINT(readability-redundant-member-init)
  bool canWrite = true;    ///< whether standard output takes anything; if not, it is as on a full disk
};

/// Runs a program with its output in pipes.
/// \param command the program's path and its arguments, UTF-8 on Windows
ProgramResult RunProgram(const std::vector<std::string>& command, const ProgramSetting& setting = {});

/// A path as an argument.
std::string NameOf(const std::filesystem::path& path);

/// Whether RunOnTerminal can work here: a chroot may have no pseudo-terminals.
bool HasTerminals();

/// Why it cannot.
inline constexpr const char* kNoTerminals = "there are no pseudo-terminals here";

/// Runs a program on a terminal of that many columns.
ProgramResult RunOnTerminal(const std::vector<std::string>& command, unsigned short columns);

/// The same with somebody who types, and then ends the input.
/// \param typed short text of whole lines; the terminal shows it like all that is typed
ProgramResult RunOnTerminal(const std::vector<std::string>& command, unsigned short columns, const std::string& typed);

/// The lines of a text, without their line ends (LF, or the CR LF that a terminal makes of it).
std::vector<std::string> Lines(const std::string& text);

}  // namespace testsupport

// Runs other programs.
#pragma once

#include <string>
#include <vector>

namespace bench {

/// Runs a program, given by its path and arguments, discards its output, and returns how many seconds it took.
/// \throws std::runtime_error if the program cannot be started or does not end with status 0
double SecondsOf(const std::vector<std::string>& command);

/// Runs a program in the same way, but returns what it writes to standard output, which must be short.
std::string OutputOf(const std::vector<std::string>& command);

}  // namespace bench

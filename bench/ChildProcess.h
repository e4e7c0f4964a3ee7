// Runs other programs.
#pragma once

#include <string>
#include <vector>

namespace bench {

/// Runs a program, given by its path and arguments, from its start to its end, with its output thrown away, and returns
/// the seconds that it took.
/// \throws std::runtime_error when the program cannot be started or does not end with status 0
double SecondsOf(const std::vector<std::string>& command);

/// Runs a program in the same way and returns what it writes to standard output, which must be short.
std::string OutputOf(const std::vector<std::string>& command);

}  // namespace bench

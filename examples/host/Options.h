// The host's command line.
#pragma once

#include <span>
#include <stdexcept>
#include <string>

namespace host {

struct Options {
  std::string directory;              ///< whose VIFs are listed; empty when none is given
  std::string vif;                    ///< the VIF; empty when the operator is to be asked
  std::string library = VIF_LIBRARY;  ///< the library with the hooks: its installed name
  std::string log = "suite.log";      ///< in the current directory, as where the host lies may not be writable
  bool help = false;                  ///< nothing is to be done but to show `kUsage`
};

/// What is wrong with a command line.
class CUsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

extern const char* const kUsage;

/// \param arguments those behind the program's name
/// \throws CUsageError
Options ParseOptions(std::span<char* const> arguments);

}  // namespace host

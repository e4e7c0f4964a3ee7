// The host's command line.
#pragma once

#include <span>
#include <stdexcept>
#include <string>

namespace host {

struct Options {
  std::string directory;              ///< whose VIFs are listed; empty if none is given
  std::string vif;                    ///< the VIF; empty to ask the operator
  std::string library = VIF_LIBRARY;  ///< the library with the hooks: its installed name
  std::string log = "suite.log";      ///< in the current directory, as the host's own may not be writable
  bool help = false;                  ///< only show `kUsage`
};

/// Says what is wrong with a command line.
class CUsageError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

extern const char* const kUsage;

/// \param arguments those after the program's name
/// \throws CUsageError
Options ParseOptions(std::span<char* const> arguments);

}  // namespace host

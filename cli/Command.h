// What the commands of `vif` share.
#pragma once

#include <stdexcept>
#include <string>
#include <vector>

namespace CLI {
class App;
}

namespace cli {

/// The exit statuses.
enum Status : int {
  kDone = 0,
  kNegative = 1,  // ran, but found no match, problems or differences
  kFailed = 2,    // wrong usage, or a file that cannot be read or is not a VIF
};

/// The command ran, but found no match or found problems; the text says what.
class NegativeResult : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The command cannot do what was asked; the text says what failed, where and why.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Each of these adds one command to the application. The command stores its exit status in `status`, which must
// outlive the application.
void AddListCommand(CLI::App& app, Status& status);
void AddGetCommand(CLI::App& app, Status& status);
void AddShowCommand(CLI::App& app, Status& status);
void AddCheckCommand(CLI::App& app, Status& status);
void AddExplainCommand(CLI::App& app, Status& status);
void AddDiffCommand(CLI::App& app, Status& status);
void AddReportCommand(CLI::App& app, Status& status);

/// Joins each location option of `vif get` with its number, or "any" where it has none, by an equals sign: CLI11 cannot
/// tell whether the optional number follows.
/// \throws Failure for an option that ends in an equals sign
std::vector<std::string> CompleteLocationOptions(std::vector<std::string> arguments);

}  // namespace cli

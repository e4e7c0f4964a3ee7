// What the commands of `vif` have in common.
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
  kWanting = 1,  // looked and found wanting: no match, problems, differences
  kFailed = 2,   // could not do it: usage, unreadable, not a VIF
};

/// The command has looked and found wanting; the text says what.
class Wanting : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The command cannot do what it was asked to; the text says what, where and why.
class Failure : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

// Each of these adds one command to the application. When the command has run, it leaves its exit status in
// `status`, which must outlive the application.
void AddListCommand(CLI::App& app, Status& status);
void AddGetCommand(CLI::App& app, Status& status);
void AddShowCommand(CLI::App& app, Status& status);
void AddCheckCommand(CLI::App& app, Status& status);

/// Makes up for what CLI11 cannot know: a location option of `vif get` may stand without a number. Gives each such
/// option its number, or "any", with an equals sign.
std::vector<std::string> CompleteLocationOptions(std::vector<std::string> arguments);

}  // namespace cli

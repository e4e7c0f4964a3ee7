// The options of `vif` and its commands.
#pragma once

#include "Command.h"

#include <memory>

namespace cli {

/// All options, with their help. A command that is parsed and run stores its exit status in `status`, which must
/// outlive the application.
std::unique_ptr<CLI::App> MakeApplication(Status& status);

}  // namespace cli

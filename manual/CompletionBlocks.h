// The parts of completion scripts that come from the options of the commands and the tables of the analysis.
#pragma once

#include "Commands.h"

#include <string>
#include <vector>

namespace manual {

/// What a directive of a completion script makes.
/// \throws std::runtime_error when there is no such directive
std::string CompletionBlock(const std::string& directive, const std::vector<Command>& commands);

}  // namespace manual

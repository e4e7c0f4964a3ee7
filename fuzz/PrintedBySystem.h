// What the system's own snprintf makes of a format.
#pragma once

#include "BaseUtilities/SimpleBuffer.h"

#include <optional>
#include <string>
#include <vector>

namespace fuzz {

/// What snprintf prints when each placeholder is given to it with its argument. What snprintf does not define or does
/// otherwise is left to no comparison: nothing is returned when a text or a character that is not ASCII is to be filled
/// up.
std::optional<std::string> PrintedBySystem(const std::string& format, const std::vector<CFormatArgument>& arguments);

}  // namespace fuzz

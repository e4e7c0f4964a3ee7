// What the system's own snprintf prints for a format.
#pragma once

#include "BaseUtilities/SimpleBuffer.h"

#include <optional>
#include <string>
#include <vector>

namespace fuzz {

/// What snprintf prints if each placeholder is passed to it with its argument. Returns nothing where snprintf does
/// something different or undefined, so that there is nothing to compare: when a text or a character that is not ASCII
/// is padded.
std::optional<std::string> PrintedBySystem(const std::string& format, const std::vector<CFormatArgument>& arguments);

}  // namespace fuzz

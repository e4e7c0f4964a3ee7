// The names of the elements that hold groups.
#pragma once

#include "VIFLocations.h"

#include <optional>
#include <string_view>

namespace vif {

/// The location that an element's local name stands for, in exactly the format's mixed spellings; nothing for any other
/// name.
std::optional<EVifLocation> FindGroupLocation(std::wstring_view localName);

}  // namespace vif

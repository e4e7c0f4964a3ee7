// The names of the elements that hold groups.
#pragma once

#include "VIFLocations.h"

#include <optional>
#include <string_view>

namespace vif {

/// The location of groups and group lists with that local name, which must be spelled exactly as the format does;
/// nothing for any other name.
std::optional<EVifLocation> FindGroupLocation(std::wstring_view localName);

}  // namespace vif

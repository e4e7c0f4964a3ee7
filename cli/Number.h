// Numbers as arguments.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

namespace cli {

/// The number of up to 64 bits that the text is, in decimal digits and nothing else.
std::optional<std::uint64_t> ParseNumber(std::string_view text);

}  // namespace cli

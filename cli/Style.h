// Emphasis for people, on a terminal only.
#pragma once

#include <string>
#include <string_view>

namespace cli {

/// Whether output may be coloured: standard output is a terminal, and NO_COLOR is unset or empty.
bool MayColour();

/// A heading, in bold where output may be coloured.
std::string Heading(std::string_view text);

}  // namespace cli

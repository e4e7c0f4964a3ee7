// Emphasis, on a terminal only.
#pragma once

#include <string>
#include <string_view>

namespace cli {

/// Whether output may have colours: standard output is a terminal, and NO_COLOR is unset or empty.
bool MayColour();

/// A heading, in bold if output may have colours.
std::string Heading(std::string_view text);

/// An addition of the command to what a file says, dimmed if output may have colours.
std::string Dimmed(std::string_view text);

}  // namespace cli

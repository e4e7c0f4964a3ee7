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

/// A text that only the first of two files has, in red if output may have colours.
std::string Removed(std::string_view text);

/// A text that only the second of two files has, in green if output may have colours.
std::string Added(std::string_view text);

}  // namespace cli

// Text for people to read: what a file holds is never sent to a terminal as it is.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cli {

/// The text as valid UTF-8; bytes that are none become U+FFFD.
std::string ValidUtf8(std::string_view text);

/// The text as valid UTF-8 on one line: control characters, which could steer a terminal, appear as escapes such
/// as \n and \x1b.
std::string Printable(std::string_view text);

/// Whether the character is one of 0 to 9, in any locale.
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The columns that printable text takes up on a terminal.
size_t DisplayWidth(std::string_view text);

/// Printable text cut to that many columns, the last of which is then an ellipsis.
std::string CutToWidth(std::string_view text, size_t width);

}  // namespace cli

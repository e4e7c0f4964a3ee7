// Makes text from files safe to print.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace cli {

/// The text with U+FFFD for bytes that are not UTF-8.
std::string ValidUtf8(std::string_view text);

/// The text as valid UTF-8 on one line. Characters that could control a terminal, or mislead the reader by changing the
/// direction of text, become escapes such as \n and \x1b.
std::string Printable(std::string_view text);

/// Whether the character is one of 0 to 9, in any locale.
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The columns of a terminal that printable text takes up.
size_t DisplayWidth(std::string_view text);

/// Printable text, cut if necessary to that many columns with an ellipsis in the last.
std::string CutToWidth(std::string_view text, size_t width);

}  // namespace cli

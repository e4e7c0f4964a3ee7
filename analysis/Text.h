// Text for people to read: what a file holds is never sent to a terminal as it is.
#pragma once

#include <analysis/Export.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace vifanalysis {

/// The text as valid UTF-8; bytes that are none become U+FFFD.
VIF_ANALYSIS_API std::string ValidUtf8(std::string_view text);

/// The text as valid UTF-8 on one line: control characters, which could steer a terminal, appear as escapes such
/// as \n and \x1b.
VIF_ANALYSIS_API std::string Printable(std::string_view text);

/// Whether the character is one of 0 to 9, in any locale.
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The columns that printable text takes up on a terminal.
VIF_ANALYSIS_API size_t DisplayWidth(std::string_view text);

/// Printable text cut to that many columns, the last of which is then an ellipsis.
VIF_ANALYSIS_API std::string CutToWidth(std::string_view text, size_t width);

/// Such as "1 error" and "2 errors".
VIF_ANALYSIS_API std::string Amount(std::size_t count, const std::string& noun);

}  // namespace vifanalysis

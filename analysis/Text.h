// Makes text from files safe to print.
#pragma once

#include <analysis/Export.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <string_view>

namespace vifanalysis {

/// The text with U+FFFD for bytes that are not UTF-8.
VIF_ANALYSIS_API std::string ValidUtf8(std::string_view text);

/// The text as valid UTF-8 on one line. Characters that could control a terminal, or mislead the reader by changing the
/// direction of text, become escapes such as `\n` and `\x1b`.
VIF_ANALYSIS_API std::string Printable(std::string_view text);

/// Whether the character is one of 0 to 9, in any locale.
constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// The character in lower case if it is one of A to Z, in any locale; any other unchanged.
constexpr char ToLowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

/// Whether two texts differ at most in the case of ASCII letters.
constexpr bool EqualInAnyCase(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return ToLowerAscii(x) == ToLowerAscii(y); });
}

/// The columns of a terminal that printable text takes up.
VIF_ANALYSIS_API size_t DisplayWidth(std::string_view text);

/// Printable text, cut to that many columns, an ellipsis in the last, if it is wider.
VIF_ANALYSIS_API std::string CutToWidth(std::string_view text, size_t width);

/// "1 error" or "2 errors".
VIF_ANALYSIS_API std::string Amount(std::size_t count, const std::string& noun);

}  // namespace vifanalysis

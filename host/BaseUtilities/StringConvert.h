// The host's conversions between narrow (UTF-8) and wide text, and between upper and lower case.
//
// "Wide" is the platform's `wchar_t` text: UTF-16 on Windows, UTF-32 elsewhere. All functions may be called from any
// number of threads at once and throw only `std::bad_alloc`.
#pragma once

#include "BaseUtilities/HostExport.h"

#include <string>
#include <string_view>

/// The wide form of UTF-8 text. Every maximal run of bytes that cannot begin a valid UTF-8 sequence becomes one U+FFFD,
/// as the Unicode standard recommends, so any input can be converted.
ZO_API std::wstring Utf8ToUtf16(std::string_view text);

/// The UTF-8 form of wide text. A surrogate without its partner, or a value beyond U+10FFFF, becomes U+FFFD.
ZO_API std::string Utf16ToUtf8(std::wstring_view text);

/// Converts the ASCII letters of the text to upper case, in place. Other bytes do not change.
ZO_API void ToUpper(std::string& text);

/// Converts the ASCII letters of the text to lower case, in place. Other bytes do not change.
ZO_API void ToLower(std::string& text);

// The host's conversions between narrow (UTF-8) and wide text, and its change of letter case.
//
// "Wide" is the platform's `wchar_t` text: UTF-16 on Windows, UTF-32 elsewhere. All functions may be called
// from any number of threads at once and throw nothing but `std::bad_alloc`.
#pragma once

#include "BaseUtilities/HostExport.h"

#include <string>
#include <string_view>

/// The wide form of UTF-8 text. Every maximal run of bytes that begins no valid UTF-8 sequence becomes one
/// U+FFFD, as the Unicode standard recommends, so the call never fails on its input.
ZO_API std::wstring Utf8ToUtf16(std::string_view text);

/// The UTF-8 form of wide text. A surrogate without its partner, or a value beyond U+10FFFF, becomes U+FFFD.
ZO_API std::string Utf16ToUtf8(std::wstring_view text);

/// Turns the ASCII letters of the text into upper case, in place. Other bytes stay as they are.
ZO_API void ToUpper(std::string& text);

/// Turns the ASCII letters of the text into lower case, in place. Other bytes stay as they are.
ZO_API void ToLower(std::string& text);

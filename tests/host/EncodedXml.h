// XML documents in various file encodings.
#pragma once

#include "BaseUtilities/StringConvert.h"

#include <array>
#include <cstddef>
#include <string>
#include <string_view>

namespace testsupport {

enum class EForm { Utf8, Utf8WithMark, Utf16Little, Utf16Big, Latin1 };

inline constexpr std::array kForms = {EForm::Utf8, EForm::Utf8WithMark, EForm::Utf16Little, EForm::Utf16Big,
                                      EForm::Latin1};

/// Converts UTF-8 to UTF-16 with a byte order mark.
inline std::string EncodeUtf16(std::string_view utf8, bool isBig) {
  std::string bytes;
  const auto append = [&](char32_t unit) {
    const char halves[] = {static_cast<char>(unit / 256), static_cast<char>(unit % 256)};
    bytes += {halves[isBig ? 0 : 1], halves[isBig ? 1 : 0]};
  };
  append(0xFEFF);
  for (const wchar_t wide : Utf8ToUtf16(utf8)) {
    const auto c = static_cast<char32_t>(wide);
    if (c > 0xFFFF) append(0xD7C0 + (c >> 10));
    append(c > 0xFFFF ? 0xDC00 + (c & 0x3FF) : c);
  }
  return bytes;
}

/// Converts UTF-8 to ISO 8859-1, with an underscore for characters that it lacks.
inline std::string EncodeLatin1(std::string_view utf8) {
  std::string bytes;
  for (const wchar_t wide : Utf8ToUtf16(utf8)) {
    const auto c = static_cast<char32_t>(wide);
    bytes += c <= 0xFF ? static_cast<char>(c) : '_';
  }
  return bytes;
}

inline std::string Encode(std::string_view utf8, EForm form) {
  switch (form) {
    case EForm::Utf8: break;
    case EForm::Utf8WithMark: return std::string("\xEF\xBB\xBF").append(utf8);
    case EForm::Utf16Little: return EncodeUtf16(utf8, false);
    case EForm::Utf16Big: return EncodeUtf16(utf8, true);
    case EForm::Latin1: return EncodeLatin1(utf8);
  }
  return std::string(utf8);
}

}  // namespace testsupport

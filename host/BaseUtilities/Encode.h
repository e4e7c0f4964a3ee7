// What text conversions share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace zotext {

/// Copies ASCII text into characters of another width. Nearly all text of a VIF is ASCII, and copying it many
/// characters at a time is much faster than decoding them one by one.
/// \param text the text to copy
/// \param copy room for as many characters as the text has
/// \return whether the text was ASCII; if not, the copy is useless
template <typename From, typename To>
bool CopyAscii(std::basic_string_view<From> text, To* copy) {
  constexpr auto ascii = static_cast<From>(0x7F);
  // Most texts are so short that preparing to copy many at a time takes longer.
  if (text.size() < 16) {
    for (std::size_t i = 0; i < text.size(); ++i) {
      if ((text[i] & ~ascii) != 0) return false;
      copy[i] = static_cast<To>(text[i]);
    }
    return true;
  }
  From bits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    bits = static_cast<From>(bits | text[i]);
    copy[i] = static_cast<To>(text[i]);
  }
  return (bits & ~ascii) == 0;
}

/// Whether a byte of UTF-8 is the first of a character.
constexpr bool BeginsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U; }

/// Appends a character as UTF-8.
/// \param text receives one to four bytes at its end
/// \param code a Unicode code point
inline void AppendUtf8(std::string& text, char32_t code) {
  const auto append = [&](char32_t byte) { text += static_cast<char>(byte); };
  if (code < 0x80) return append(code);
  if (code >= 0x10000) append(0xF0 | code >> 18);
  if (code >= 0x10000) append(0x80 | (code >> 12 & 0x3F));
  if (code >= 0x800 && code < 0x10000) append(0xE0 | code >> 12);
  append(code >= 0x800 ? 0x80 | (code >> 6 & 0x3F) : 0xC0 | code >> 6);
  append(0x80 | (code & 0x3F));
}

/// The text in bytes of UTF-16. An unpaired surrogate becomes U+FFFD; an odd byte at the end is left out.
inline std::string Utf8OfUtf16(std::string_view bytes, bool isBigEndian) {
  const auto unitAt = [&](std::size_t i) -> std::uint32_t {
    if (i + 1 >= bytes.size()) return 0;
    const auto first = static_cast<unsigned char>(bytes[i]);
    const auto second = static_cast<unsigned char>(bytes[i + 1]);
    return isBigEndian ? first * 256U + second : second * 256U + first;
  };
  std::string text;
  text.reserve(bytes.size() / 2);
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    const std::uint32_t unit = unitAt(i);
    const std::uint32_t next = unitAt(i + 2);
    if (unit >= 0xD800 && unit < 0xDC00 && next >= 0xDC00 && next < 0xE000) {
      AppendUtf8(text, 0x10000 + (unit - 0xD800) * 0x400 + (next - 0xDC00));
      i += 2;
    } else {
      AppendUtf8(text, unit >= 0xD800 && unit < 0xE000 ? 0xFFFD : unit);
    }
  }
  return text;
}

}  // namespace zotext

// A fast path for ASCII text.
#pragma once

#include <cstddef>
#include <string_view>

/// Copies ASCII text into characters of another width. Nearly all text of a VIF is ASCII, and copying it many
/// characters at a time is much faster than decoding them one by one.
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

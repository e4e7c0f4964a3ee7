// What is simple about ASCII text.
#pragma once

#include <cstddef>
#include <string_view>

/// Copies text into characters of another width, as it is when it is ASCII. Nearly all text of a VIF is, and so it is
/// copied many characters at a time, which is much faster than decoding one after the other.
/// \param copy room for as many characters as the text has
/// \return whether the text was ASCII; when not, the copy is of no use
template <typename From, typename To>
bool CopyAscii(std::basic_string_view<From> text, To* copy) {
  constexpr auto ascii = static_cast<From>(0x7F);
  From bits = 0;
  for (std::size_t i = 0; i < text.size(); ++i) {
    bits = static_cast<From>(bits | text[i]);
    copy[i] = static_cast<To>(text[i]);
  }
  return (bits & ~ascii) == 0;
}

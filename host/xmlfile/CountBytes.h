// Counts the bytes that satisfy a predicate.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string_view>

namespace xmlfile {

/// The number of characters for which the predicate is true. They are counted in parts whose count fits a byte, which
/// lets the compiler vectorise the loop.
template <typename Predicate>
std::size_t CountBytes(std::string_view text, Predicate isCounted) {
  constexpr std::size_t part = 255;
  std::size_t count = 0;
  for (; !text.empty(); text.remove_prefix(std::min(part, text.size()))) {
    std::uint8_t countOfPart = 0;
    for (const char c : text.substr(0, part)) countOfPart = static_cast<std::uint8_t>(countOfPart + isCounted(c));
    count += countOfPart;
  }
  return count;
}

}  // namespace xmlfile

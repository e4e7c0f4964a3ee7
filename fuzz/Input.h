// Parses an input. Inputs are lines of text, so that they can be read and written by hand.
#pragma once

#include "VIFField.h"

#include <array>
#include <charconv>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>

namespace fuzz {

using Slots = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

/// The number at the start of a text; 0 if there is none.
template <typename Number>
Number NumberIn(std::string_view text) {
  Number number = 0;
  std::from_chars(text.data(), text.data() + text.size(), number);
  return number;
}

/// Removes and returns what precedes the separator, or all of the text if there is none. Also removes the separator.
inline std::string_view TakeUpTo(char separator, std::string_view& text) {
  const std::string_view part = text.substr(0, text.find(separator));
  text.remove_prefix(part.size() < text.size() ? part.size() + 1 : part.size());
  return part;
}

/// Slots such as "6:1 7:*": locations with their numbers, where `*` is any number. Missing slots are unused.
inline Slots SlotsIn(std::string_view text) {
  Slots slots;
  for (VifIndex& slot : slots) {
    std::string_view number = TakeUpTo(' ', text);
    const auto location = static_cast<EVifLocation>(NumberIn<std::int32_t>(TakeUpTo(':', number)));
    slot = {location, number == "*" ? CVIFField::INDEX_NOT_SPECIFIED : NumberIn<std::uint64_t>(number)};
    if (location == eVifLocUnset) slot = CVIFField::UNSPECIFIED_INDEX;
  }
  return slots;
}

/// A text that ends where its memory ends, so that reading past its NUL is detected.
template <typename Char>
class CExactText {
 public:
  explicit CExactText(std::basic_string_view<Char> text) : m_text(std::make_unique<Char[]>(text.size() + 1)) {
    text.copy(m_text.get(), text.size());
  }

  const Char* Get() const { return m_text.get(); }

 private:
  std::unique_ptr<Char[]> m_text;
};

}  // namespace fuzz

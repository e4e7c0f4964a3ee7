#include "SimpleUtf8.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>

namespace fuzz {

namespace {

constexpr char32_t kReplacement = 0xFFFD;

/// A range of characters, without the surrogates, that take the same number of bytes.
struct Form {
  std::size_t length;
  std::uint32_t leadBits;  // of the first byte, which say how many bytes there are
  std::uint32_t leadMask;
  std::uint32_t first;
  std::uint32_t last;
};

constexpr std::array<Form, 5> kForms = {{{1, 0x00, 0x80, 0, 0x7F},
                                         {2, 0xC0, 0xE0, 0x80, 0x7FF},
                                         {3, 0xE0, 0xF0, 0x800, 0xD7FF},
                                         {3, 0xE0, 0xF0, 0xE000, 0xFFFF},
                                         {4, 0xF0, 0xF8, 0x10000, 0x10FFFF}}};

std::uint32_t Byte(char c) { return static_cast<unsigned char>(c); }

/// The number in the bytes of that form, with missing bytes replaced by `fill`.
std::uint32_t Payload(const Form& form, std::string_view bytes, std::uint32_t fill) {
  std::uint32_t payload = Byte(bytes[0]) & ~form.leadMask;
  for (std::size_t i = 1; i < form.length; ++i)
    payload = payload << 6U | (i < bytes.size() ? Byte(bytes[i]) & 0x3FU : fill);
  return payload;
}

/// Whether a character of that form can begin with the bytes.
bool CanBeginWith(const Form& form, std::string_view bytes) {
  if (bytes.size() > form.length || (Byte(bytes[0]) & form.leadMask) != form.leadBits) return false;
  const bool goesOn = std::all_of(bytes.begin() + 1, bytes.end(), [](char c) { return (Byte(c) & 0xC0U) == 0x80U; });
  return goesOn && Payload(form, bytes, 0x3F) >= form.first && Payload(form, bytes, 0) <= form.last;
}

/// Removes and returns the first character of the text.
char32_t TakeCharacter(std::string_view& text) {
  std::size_t length = 1;
  char32_t character = kReplacement;
  for (std::size_t tried = 1; tried <= std::min<std::size_t>(4, text.size()); ++tried) {
    const std::string_view bytes = text.substr(0, tried);
    for (const Form& form : kForms) {
      if (!CanBeginWith(form, bytes)) continue;
      length = tried;
      if (tried == form.length) character = Payload(form, bytes, 0);
    }
  }
  text.remove_prefix(length);
  return character;
}

std::string Encode(std::uint32_t character) {
  for (const Form& form : kForms) {
    if (character < form.first || character > form.last) continue;
    std::string bytes;
    for (std::size_t i = 1; i < form.length; ++i, character >>= 6U) {
      bytes.insert(bytes.begin(), static_cast<char>(0x80U | (character & 0x3FU)));
    }
    return static_cast<char>(form.leadBits | character) + bytes;
  }
  return "\xEF\xBF\xBD";
}

}  // namespace

std::u32string DecodeUtf8Simply(std::string_view text) {
  std::u32string characters;
  while (!text.empty()) characters += TakeCharacter(text);
  return characters;
}

std::string EncodeUtf8Simply(std::u32string_view characters) {
  std::string text;
  for (const char32_t character : characters) text += Encode(character);
  return text;
}

}  // namespace fuzz

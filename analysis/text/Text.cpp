#include <analysis/Text.h>

#include "CharacterWidth.h"

#include <BaseUtilities/StringConvert.h>

#include <string>

namespace vifanalysis {

namespace {

/// The columns of the character that begins at an element of the text; 0 for the second element of a surrogate pair.
size_t WidthAt(std::wstring_view text, size_t i) {
  const auto c = static_cast<char32_t>(text[i]);
  if constexpr (sizeof(wchar_t) == 2) {
    if (c >= 0xDC00 && c <= 0xDFFF) return 0;
    if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size()) {
      return CharacterWidth(0x10000 + ((c - 0xD800) << 10U) + (static_cast<char32_t>(text[i + 1]) - 0xDC00));
    }
  }
  return CharacterWidth(c);
}

bool IsControl(wchar_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029; }

/// Characters that change the direction of text, and with it what a reader sees.
bool IsDirectionMark(wchar_t c) {
  return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0x200E || c == 0x200F;
}

std::wstring Escape(wchar_t c) {
  switch (c) {
    case L'\n': return L"\\n";
    case L'\r': return L"\\r";
    case L'\t': return L"\\t";
    default: break;
  }
  constexpr std::wstring_view digits = L"0123456789abcdef";
  const auto code = std::char_traits<wchar_t>::to_int_type(c);
  const auto digit = [&](unsigned shift) { return digits[(code >> shift) & 0xFU]; };
  if (code < 0x100) return {L'\\', L'x', digit(4), digit(0)};
  return {L'\\', L'u', digit(12), digit(8), digit(4), digit(0)};
}

}  // namespace

std::string ValidUtf8(std::string_view text) { return Utf16ToUtf8(Utf8ToUtf16(text)); }

std::string Printable(std::string_view text) {
  std::wstring out;
  for (const wchar_t c : Utf8ToUtf16(text)) {
    if (IsControl(c) || IsDirectionMark(c)) {
      out += Escape(c);
    } else {
      out += c;
    }
  }
  return Utf16ToUtf8(out);
}

size_t DisplayWidth(std::string_view text) {
  const std::wstring wide = Utf8ToUtf16(text);
  size_t width = 0;
  for (size_t i = 0; i < wide.size(); ++i) width += WidthAt(wide, i);
  return width;
}

std::string CutToWidth(std::string_view text, size_t width) {
  const std::wstring wide = Utf8ToUtf16(text);
  size_t used = 0;
  size_t fits = 0;  // the characters that fit before the ellipsis
  for (size_t i = 0; i < wide.size(); ++i) {
    used += WidthAt(wide, i);
    if (used < width) fits = i + 1;
    if (used > width) return width == 0 ? std::string() : Utf16ToUtf8(wide.substr(0, fits) + L"\u2026");
  }
  return std::string(text);
}

std::string Amount(std::size_t count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

}  // namespace vifanalysis

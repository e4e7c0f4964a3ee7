#include "Printable.h"

#include <BaseUtilities/StringConvert.h>

namespace host {

namespace {

bool IsControl(wchar_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0) || c == 0x2028 || c == 0x2029; }

bool IsDirectionMark(wchar_t c) {
  return (c >= 0x202A && c <= 0x202E) || (c >= 0x2066 && c <= 0x2069) || c == 0x200E || c == 0x200F || c == 0x061C;
}

std::wstring Escape(wchar_t c) {
  constexpr std::wstring_view digits = L"0123456789abcdef";
  const auto code = std::char_traits<wchar_t>::to_int_type(c);
  const auto digit = [&](unsigned shift) { return digits[(code >> shift) & 0xFU]; };
  return {L'\\', L'u', digit(12), digit(8), digit(4), digit(0)};
}

}  // namespace

std::string Printable(std::string_view text) {
  std::wstring shown;
  for (const wchar_t c : Utf8ToUtf16(text)) {
    if (IsControl(c) || IsDirectionMark(c)) {
      shown += Escape(c);
    } else {
      shown += c;
    }
  }
  return Utf16ToUtf8(shown);
}

}  // namespace host

#include "BaseUtilities/StringConvert.h"

#include "BaseUtilities/Encode.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace {

constexpr char32_t kReplacement = 0xFFFD;
constexpr char32_t kLastCodePoint = 0x10FFFF;

struct Decoded {
  char32_t codePoint;
  size_t length;  // bytes or units consumed, at least one
};

/// What a lead byte implies: the sequence's length, its first payload bits, and the range of its second byte (the
/// narrow ranges exclude overlong forms, surrogates and values past U+10FFFF).
struct LeadByte {
  size_t length;
  char32_t bits;
  uint8_t secondLow;
  uint8_t secondHigh;
};

LeadByte ReadLeadByte(uint8_t byte) {
  if (byte >= 0xC2 && byte <= 0xDF) return {2, byte & 0x1FU, 0x80, 0xBF};
  if (byte == 0xE0) return {3, 0, 0xA0, 0xBF};
  if (byte == 0xED) return {3, 0xD, 0x80, 0x9F};
  if (byte >= 0xE1 && byte <= 0xEF) return {3, byte & 0x0FU, 0x80, 0xBF};
  if (byte == 0xF0) return {4, 0, 0x90, 0xBF};
  if (byte >= 0xF1 && byte <= 0xF3) return {4, byte & 0x07U, 0x80, 0xBF};
  if (byte == 0xF4) return {4, 4, 0x80, 0x8F};
  return {0, 0, 0, 0};
}

Decoded DecodeUtf8(std::string_view text) {
  const auto byteAt = [&](size_t i) { return static_cast<uint8_t>(text[i]); };
  if (byteAt(0) < 0x80) return {byteAt(0), 1};
  const LeadByte lead = ReadLeadByte(byteAt(0));
  if (lead.length == 0) return {kReplacement, 1};
  char32_t codePoint = lead.bits;
  for (size_t i = 1; i < lead.length; ++i) {
    const uint8_t low = i == 1 ? lead.secondLow : 0x80;
    const uint8_t high = i == 1 ? lead.secondHigh : 0xBF;
    if (i >= text.size() || byteAt(i) < low || byteAt(i) > high) return {kReplacement, i};
    codePoint = (codePoint << 6) | (byteAt(i) & 0x3FU);
  }
  return {codePoint, lead.length};
}

void AppendWide(std::wstring& out, char32_t codePoint) {
  if constexpr (sizeof(wchar_t) == 2) {
    if (codePoint > 0xFFFF) {
      const char32_t rest = codePoint - 0x10000;
      out += static_cast<wchar_t>(0xD800 + (rest >> 10));
      out += static_cast<wchar_t>(0xDC00 + (rest & 0x3FF));
      return;
    }
  }
  out += static_cast<wchar_t>(codePoint);
}

bool IsHighSurrogate(char32_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; }
bool IsLowSurrogate(char32_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

Decoded DecodeWide(std::wstring_view text) {
  const auto first = static_cast<char32_t>(text[0]);
  if constexpr (sizeof(wchar_t) == 2) {
    if (IsHighSurrogate(first) && text.size() > 1) {
      const auto second = static_cast<char32_t>(text[1]);
      if (IsLowSurrogate(second)) return {0x10000 + ((first - 0xD800) << 10) + (second - 0xDC00), 2};
    }
  }
  if (IsHighSurrogate(first) || IsLowSurrogate(first) || first > kLastCodePoint) return {kReplacement, 1};
  return {first, 1};
}

}  // namespace

std::wstring Utf8ToUtf16(std::string_view text) {
  std::wstring out(text.size(), L'\0');
  if (zotext::CopyAscii(text, out.data())) return out;
  out.clear();
  while (!text.empty()) {
    const Decoded next = DecodeUtf8(text);
    AppendWide(out, next.codePoint);
    text.remove_prefix(next.length);
  }
  return out;
}

std::string Utf16ToUtf8(std::wstring_view text) {
  std::string out(text.size(), '\0');
  if (zotext::CopyAscii(text, out.data())) return out;
  out.clear();
  while (!text.empty()) {
    const Decoded next = DecodeWide(text);
    zotext::AppendUtf8(out, next.codePoint);
    text.remove_prefix(next.length);
  }
  return out;
}

void ToUpper(std::string& text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
}

void ToLower(std::string& text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; });
}

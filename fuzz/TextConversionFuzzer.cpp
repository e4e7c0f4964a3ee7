// Converts any bytes from UTF-8 to wide text and back, and any wide text to UTF-8, and does so a second time simply.
#include "BaseUtilities/StringConvert.h"
#include "Checks.h"
#include "SimpleUtf8.h"

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>

namespace {

using fuzz::Require;
using fuzz::RequireSame;

/// As long as what is copied at a time when all is ASCII.
constexpr std::size_t kAsciiRun = 64;

std::u32string Characters(std::wstring_view wide) { return {wide.begin(), wide.end()}; }

void CheckNarrow(const std::string& text) {
  const std::wstring wide = Utf8ToUtf16(text);
  const std::u32string characters = fuzz::DecodeUtf8Simply(text);
  const std::string expected = fuzz::EncodeUtf8Simply(characters);
  const bool isValid = expected == text;
  RequireSame(fuzz::EncodeUtf8Simply(Characters(wide)), expected, "text is decoded as the simple decoder does it");
  Require(Characters(wide) == characters, "wide text has the characters of the simple decoder");
  RequireSame(Utf16ToUtf8(wide), expected, "wide text is encoded as the simple encoder does it");
  Require(isValid || wide.find(L'\uFFFD') != std::wstring::npos, "what is not UTF-8 becomes U+FFFD");
  Require(Utf8ToUtf16(expected) == wide, "what is replaced is UTF-8");
}

void CheckWide(const std::wstring& wide) {
  const std::string text = Utf16ToUtf8(wide);
  RequireSame(text, fuzz::EncodeUtf8Simply(Characters(wide)), "wide text is encoded as the simple encoder does it");
  RequireSame(Utf16ToUtf8(Utf8ToUtf16(text)), text, "what comes of wide text is UTF-8");
}

/// ASCII before or behind a text makes no difference to it, although text that is all ASCII is converted in another
/// way.
void CheckInAscii(const std::string& text) {
  const std::string run(kAsciiRun, 'a');
  const std::wstring wideRun(kAsciiRun, L'a');
  const std::wstring wide = Utf8ToUtf16(text);
  Require(Utf8ToUtf16(run + text + run) == wideRun + wide + wideRun, "ASCII around a text is converted by itself");
  RequireSame(Utf16ToUtf8(wideRun + wide + wideRun), run + Utf16ToUtf8(wide) + run,
              "ASCII around a wide text is converted by itself");
}

void CheckCase(const std::string& text) {
  std::string upper = text;
  ToUpper(upper);
  std::string lower = text;
  ToLower(lower);
  Require(upper.size() == text.size() && lower.size() == text.size(), "letter case leaves the length");
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isLetter = upper[i] != lower[i];
    Require(isLetter ? upper[i] >= 'A' && upper[i] <= 'Z' && lower[i] == upper[i] + ('a' - 'A') : upper[i] == text[i],
            "letter case changes ASCII letters only");
    Require(text[i] == upper[i] || text[i] == lower[i], "a letter stays the letter that it is");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  CheckNarrow(text);
  CheckInAscii(text);
  CheckCase(text);
  std::wstring wide(size / sizeof(wchar_t), L'\0');
  if (!wide.empty()) std::memcpy(wide.data(), data, wide.size() * sizeof(wchar_t));
  CheckWide(wide);
  return 0;
}

// Converts arbitrary bytes from UTF-8 to wide text and back, and arbitrary wide text to UTF-8, and compares the results
// with those of a simple converter.
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

/// As many characters as are copied at a time if all are ASCII.
constexpr std::size_t kAsciiRun = 64;

std::u32string Characters(std::wstring_view wide) { return {wide.begin(), wide.end()}; }

void CheckNarrow(const std::string& text) {
  const std::wstring wide = Utf8ToUtf16(text);
  const std::u32string characters = fuzz::DecodeUtf8Simply(text);
  const std::string expected = fuzz::EncodeUtf8Simply(characters);
  const bool isValid = expected == text;
  RequireSame(fuzz::EncodeUtf8Simply(Characters(wide)), expected, "text is decoded as by the simple decoder");
  Require(Characters(wide) == characters, "wide text has the characters of the simple decoder");
  RequireSame(Utf16ToUtf8(wide), expected, "wide text is encoded as the simple encoder does it");
  Require(isValid || wide.find(L'\uFFFD') != std::wstring::npos, "what is not UTF-8 becomes U+FFFD");
  Require(Utf8ToUtf16(expected) == wide, "text with replacements is UTF-8");
}

void CheckWide(const std::wstring& wide) {
  const std::string text = Utf16ToUtf8(wide);
  RequireSame(text, fuzz::EncodeUtf8Simply(Characters(wide)), "wide text is encoded as the simple encoder does it");
  RequireSame(Utf16ToUtf8(Utf8ToUtf16(text)), text, "wide text becomes UTF-8");
}

/// ASCII before or after a text does not affect its conversion, although text that is all ASCII is converted
/// differently.
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
  Require(upper.size() == text.size() && lower.size() == text.size(), "changing letter case keeps the length");
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isLetter = upper[i] != lower[i];
    Require(isLetter ? upper[i] >= 'A' && upper[i] <= 'Z' && lower[i] == upper[i] + ('a' - 'A') : upper[i] == text[i],
            "changing letter case affects ASCII letters only");
    Require(text[i] == upper[i] || text[i] == lower[i], "a letter remains the same letter");
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

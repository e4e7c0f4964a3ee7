#include "BaseUtilities/PathText.h"

#include "BaseUtilities/StringConvert.h"

#ifdef _WIN32

#include "BaseUtilities/SystemText.h"
#include "CodePageWindows.h"

namespace {

UINT CodePageOfFiles() {
  if (IsSystemTextUtf8()) return CP_UTF8;
  return AreFileApisANSI() != 0 ? CP_ACP : CP_OEMCP;
}

}  // namespace

std::filesystem::path PathFromUtf8(std::string_view name) { return Utf8ToUtf16(name); }

std::string PathToUtf8(const std::filesystem::path& path) { return Utf16ToUtf8(path.native()); }

std::filesystem::path PathFromSystem(std::string_view name) { return CodePageToWide(name, CodePageOfFiles()); }

std::string PathToSystem(const std::filesystem::path& path) { return WideToCodePage(path.native(), CodePageOfFiles()); }

std::wstring PathToWide(const std::filesystem::path& path) { return path.native(); }

std::wstring PathToLosslessWide(const std::filesystem::path& path) { return path.native(); }

std::filesystem::path PathFromLosslessWide(std::wstring_view wide) { return wide; }

#else

#include <algorithm>
#include <cstddef>

namespace {

static_assert(sizeof(wchar_t) == 4, "a surrogate may be one of a pair");

constexpr wchar_t kByteBase = 0xDC00;

bool IsByte(wchar_t character) { return character >= kByteBase + 0x80 && character <= kByteBase + 0xFF; }

/// The conversions always return UTF-8.
bool IsUtf8(std::string_view text) { return Utf16ToUtf8(Utf8ToUtf16(text)) == text; }

/// The number of bytes of the character that a text begins with; 0 when its first byte is not part of one.
std::size_t CharacterLength(std::string_view text) {
  const std::size_t longest = std::min<std::size_t>(text.size(), 4);
  for (std::size_t length = 1; length <= longest; ++length) {
    if (IsUtf8(text.substr(0, length))) return length;
  }
  return 0;
}

}  // namespace

std::filesystem::path PathFromUtf8(std::string_view name) { return name; }

std::string PathToUtf8(const std::filesystem::path& path) { return path.native(); }

std::filesystem::path PathFromSystem(std::string_view name) { return name; }

std::string PathToSystem(const std::filesystem::path& path) { return path.native(); }

std::wstring PathToWide(const std::filesystem::path& path) { return Utf8ToUtf16(path.native()); }

std::wstring PathToLosslessWide(const std::filesystem::path& path) {
  std::wstring wide = PathToWide(path);
  if (Utf16ToUtf8(wide) == path.native()) return wide;  // as for almost every path
  wide.clear();
  std::string_view rest = path.native();
  while (!rest.empty()) {
    const std::size_t length = CharacterLength(rest);
    if (length == 0) {
      wide += static_cast<wchar_t>(kByteBase + static_cast<unsigned char>(rest.front()));
      rest.remove_prefix(1);
    } else {
      wide += Utf8ToUtf16(rest.substr(0, length));
      rest.remove_prefix(length);
    }
  }
  return wide;
}

std::filesystem::path PathFromLosslessWide(std::wstring_view wide) {
  if (std::none_of(wide.begin(), wide.end(), IsByte)) return Utf16ToUtf8(wide);  // as for almost every path
  std::string bytes;
  for (const wchar_t& character : wide) {
    if (IsByte(character)) {
      bytes += static_cast<char>(character - kByteBase);
    } else {
      bytes += Utf16ToUtf8(std::wstring_view(&character, 1));
    }
  }
  return bytes;
}

#endif

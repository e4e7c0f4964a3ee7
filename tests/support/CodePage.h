// The system's narrow text.
#pragma once

#include "BaseUtilities/StringConvert.h"

#ifdef _WIN32
#include <windows.h>
#endif

#include <filesystem>
#include <string>
#include <string_view>

namespace testsupport {

#ifdef _WIN32

/// Text in a code page. Characters that the code page lacks become similar ones or "?".
inline std::string InCodePage(std::wstring_view text, unsigned codePage) {
  const int size = static_cast<int>(text.size());
  std::string narrow(4 * text.size(), '\0');  // no code page needs more per character
  const int length = WideCharToMultiByte(codePage, 0, text.data(), size, narrow.data(), static_cast<int>(narrow.size()),
                                         nullptr, nullptr);
  narrow.resize(static_cast<std::size_t>(length));
  return narrow;
}

/// In the system code page, like the texts of XML files.
inline std::string SystemNarrow(std::wstring_view text) { return InCodePage(text, CP_ACP); }

/// In the code page of file functions, as messages quote a path.
inline std::string QuotedPath(const std::filesystem::path& path) {
  return InCodePage(path.native(), AreFileApisANSI() != 0 ? CP_ACP : CP_OEMCP);
}

#else

/// In UTF-8, like the texts of XML files.
inline std::string SystemNarrow(std::wstring_view text) { return Utf16ToUtf8(text); }

/// As messages quote a path.
inline std::string QuotedPath(const std::filesystem::path& path) { return path.native(); }

#endif

}  // namespace testsupport

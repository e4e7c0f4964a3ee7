#include "SystemText.h"

#include "BaseUtilities/StringConvert.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace vif {

#ifdef _WIN32

std::string SystemText(std::wstring_view text) { return CodePageText(text, CP_ACP); }

std::string CodePageText(std::wstring_view text, unsigned int codePage) {
  const int wideLength = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(codePage, 0, text.data(), wideLength, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(codePage, 0, text.data(), wideLength, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

#else

std::string SystemText(std::wstring_view text) { return Utf16ToUtf8(text); }

#endif

}  // namespace vif

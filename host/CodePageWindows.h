// Text in Windows code pages.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

/// Wide text in a code page. Characters that it lacks are replaced.
inline std::string WideToCodePage(std::wstring_view text, UINT codePage) {
  const int wideLength = static_cast<int>(text.size());
  const int length = WideCharToMultiByte(codePage, 0, text.data(), wideLength, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<std::size_t>(length), '\0');
  WideCharToMultiByte(codePage, 0, text.data(), wideLength, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

/// The wide form of text in a code page.
inline std::wstring CodePageToWide(std::string_view text, UINT codePage) {
  const int narrowLength = static_cast<int>(text.size());
  const int length = MultiByteToWideChar(codePage, 0, text.data(), narrowLength, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(codePage, 0, text.data(), narrowLength, wide.data(), length);
  return wide;
}

#include "PathText.h"

#include "BaseUtilities/StringConvert.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace vif {

#ifdef _WIN32

std::string NarrowPathText(const std::filesystem::path& path) {
  const std::wstring& wide = path.native();
  const UINT codePage = AreFileApisANSI() ? CP_ACP : CP_OEMCP;
  const int wideLength = static_cast<int>(wide.size());
  const int length = WideCharToMultiByte(codePage, 0, wide.data(), wideLength, nullptr, 0, nullptr, nullptr);
  std::string narrow(static_cast<size_t>(length), '\0');
  WideCharToMultiByte(codePage, 0, wide.data(), wideLength, narrow.data(), length, nullptr, nullptr);
  return narrow;
}

std::wstring WidePathText(const std::filesystem::path& path) { return path.native(); }

std::filesystem::path PathFromUtf8(const char* name) {
  return name != nullptr ? std::filesystem::path(Utf8ToUtf16(name)) : std::filesystem::path();
}

#else

std::string NarrowPathText(const std::filesystem::path& path) { return path.native(); }

std::wstring WidePathText(const std::filesystem::path& path) { return Utf8ToUtf16(path.native()); }

std::filesystem::path PathFromUtf8(const char* name) {
  return name != nullptr ? std::filesystem::path(name) : std::filesystem::path();
}

#endif

}  // namespace vif

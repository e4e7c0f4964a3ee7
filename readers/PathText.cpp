#include "PathText.h"

#include "BaseUtilities/StringConvert.h"
#include "SystemText.h"

#ifdef _WIN32
#include <windows.h>
#endif

namespace vif {

#ifdef _WIN32

std::string NarrowPathText(const std::filesystem::path& path) {
  return CodePageText(path.native(), AreFileApisANSI() ? CP_ACP : CP_OEMCP);
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

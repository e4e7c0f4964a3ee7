#include "FileNames.h"

#include <BaseUtilities/StringConvert.h>

namespace host {

#ifdef _WIN32

std::filesystem::path PathOf(std::string_view name) { return Utf8ToUtf16(name); }

std::string NameOf(const std::filesystem::path& path) { return Utf16ToUtf8(path.native()); }

#else

std::filesystem::path PathOf(std::string_view name) { return name; }

std::string NameOf(const std::filesystem::path& path) { return path.native(); }

#endif

}  // namespace host

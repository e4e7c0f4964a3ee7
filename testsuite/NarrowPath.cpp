#include "NarrowPath.h"

#ifdef _WIN32

#include <windows.h>

#include <cstring>
#include <string>

std::filesystem::path NarrowToPath(const char* name) {
  const UINT codePage = AreFileApisANSI() != 0 ? CP_ACP : CP_OEMCP;
  const int narrowLength = static_cast<int>(std::strlen(name));
  const int length = MultiByteToWideChar(codePage, 0, name, narrowLength, nullptr, 0);
  std::wstring wide(static_cast<std::size_t>(length), L'\0');
  MultiByteToWideChar(codePage, 0, name, narrowLength, wide.data(), length);
  return wide;
}

#else

std::filesystem::path NarrowToPath(const char* name) { return name; }

#endif

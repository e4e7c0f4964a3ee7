#include "TestUtilities/LibraryFile.h"

#include <windows.h>

#include <cstddef>
#include <string>

std::filesystem::path LibraryFile() {
  HMODULE library = nullptr;
  constexpr DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (GetModuleHandleExW(flags, reinterpret_cast<const wchar_t*>(&LibraryFile), &library) == 0) return {};
  constexpr std::size_t longestPath = 32'768;
  for (std::wstring name(MAX_PATH, L'\0'); name.size() <= longestPath; name.resize(2 * name.size())) {
    const DWORD length = GetModuleFileNameW(library, name.data(), static_cast<DWORD>(name.size()));
    if (length < name.size()) return name.substr(0, length);
  }
  return {};
}

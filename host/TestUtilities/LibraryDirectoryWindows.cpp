#include "TestUtilities/LibraryDirectory.h"

#include <windows.h>

#include <exception>
#include <string>

namespace {

namespace fs = std::filesystem;

/// The path of the file that this code was loaded from; empty when the system does not tell.
std::wstring LibraryFile() {
  HMODULE library = nullptr;
  constexpr DWORD flags = GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT;
  if (GetModuleHandleExW(flags, reinterpret_cast<const wchar_t*>(&LibraryDirectories), &library) == 0) return {};
  constexpr std::size_t longestPath = 32'768;
  for (std::wstring name(MAX_PATH, L'\0'); name.size() <= longestPath; name.resize(2 * name.size())) {
    const DWORD length = GetModuleFileNameW(library, name.data(), static_cast<DWORD>(name.size()));
    if (length < name.size()) return name.substr(0, length);
  }
  return {};
}

std::vector<fs::path> Find() {
  const fs::path loaded = LibraryFile();
  if (loaded.empty()) return {};
  std::vector<fs::path> directories = {loaded.parent_path()};
  std::error_code error;
  const fs::path file = fs::canonical(loaded, error);
  if (!error && file.parent_path() != directories.front()) directories.push_back(file.parent_path());
  return directories;
}

/// An exception here would end the process before `main`.
std::vector<fs::path> FindOrNone() noexcept {
  try {
    return Find();
  } catch (const std::exception&) {
    return {};
  }
}

const std::vector<fs::path> kDirectories = FindOrNone();

}  // namespace

const std::vector<fs::path>& LibraryDirectories() noexcept { return kDirectories; }

#include "TestUtilities/LibraryDirectory.h"

#include <dlfcn.h>
#include <exception>

namespace {

namespace fs = std::filesystem;

std::vector<fs::path> Find() {
  Dl_info info = {};
  const void* here = reinterpret_cast<const void*>(&LibraryDirectories);
  if (dladdr(here, &info) == 0 || info.dli_fname == nullptr) return {};
  const fs::path loaded = fs::absolute(info.dli_fname);
  const fs::path file = fs::canonical(loaded);
  std::vector<fs::path> directories = {loaded.parent_path()};
  if (file.parent_path() != directories.front()) directories.push_back(file.parent_path());
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

#include "TestUtilities/LibraryDirectory.h"

#include "TestUtilities/LibraryFile.h"

#include <exception>
#include <system_error>

namespace {

namespace fs = std::filesystem;

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

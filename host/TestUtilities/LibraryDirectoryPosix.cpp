#include "TestUtilities/LibraryDirectory.h"

#include <dlfcn.h>

std::filesystem::path LibraryDirectory() {
  Dl_info info = {};
  const void* here = reinterpret_cast<const void*>(&LibraryDirectory);
  if (dladdr(here, &info) == 0 || info.dli_fname == nullptr) return {};
  std::error_code ignored;
  const std::filesystem::path library = std::filesystem::absolute(info.dli_fname, ignored);
  return library.parent_path();
}

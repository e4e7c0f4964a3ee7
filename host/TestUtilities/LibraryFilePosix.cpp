#include "TestUtilities/LibraryFile.h"

#include <dlfcn.h>

std::filesystem::path LibraryFile() {
  Dl_info info = {};
  const void* here = reinterpret_cast<const void*>(&LibraryFile);
  if (dladdr(here, &info) == 0 || info.dli_fname == nullptr) return {};
  return std::filesystem::absolute(info.dli_fname);
}

#include "Modules.h"

#include <dlfcn.h>

#include <filesystem>
#include <fstream>

namespace modules {

namespace {

/// Whether a part of the file is mapped into memory.
bool IsMapped(const std::string& file) {
  const std::string path = std::filesystem::canonical(file).string();
  std::ifstream maps("/proc/self/maps");
  for (std::string line; std::getline(maps, line);) {
    if (line.ends_with(path)) return true;
  }
  return false;
}

}  // namespace

void* Load(const std::string& file) { return dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL); }

void Unload(void* library) { dlclose(library); }

void* Find(void* library, const char* symbol) { return dlsym(library, symbol); }

bool IsLoaded(const std::string& file) {
  void* const library = dlopen(file.c_str(), RTLD_NOW | RTLD_NOLOAD);
  if (library != nullptr) dlclose(library);
  return library != nullptr || IsMapped(file);
}

}  // namespace modules

#include "SharedLibrary.h"

#include <dlfcn.h>

namespace host {

// RTLD_NOW: missing symbols show up here and not in the middle of a run.
CSharedLibrary::CSharedLibrary(const std::string& file)
    : m_file(file), m_handle(dlopen(file.c_str(), RTLD_NOW | RTLD_LOCAL)) {
  if (m_handle == nullptr) throw CLibraryError("Cannot load " + file + ": " + dlerror());
}

CSharedLibrary::~CSharedLibrary() { dlclose(m_handle); }

CSharedLibrary::AnyFunction CSharedLibrary::FindFunction(const char* name) const {
  void* function = dlsym(m_handle, name);
  if (function == nullptr) throw CLibraryError(m_file + " has no function " + name);
  return reinterpret_cast<AnyFunction>(function);
}

}  // namespace host

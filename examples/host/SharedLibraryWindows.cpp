#include "SharedLibrary.h"

#include <BaseUtilities/PathText.h>
#include <windows.h>

#include <system_error>

namespace host {

namespace {

// Windows looks for a bare name next to the program first.
void* Load(const std::string& file) { return LoadLibraryW(PathFromUtf8(file).make_preferred().c_str()); }

}  // namespace

CSharedLibrary::CSharedLibrary(const std::string& file) : m_file(file), m_handle(Load(file)) {
  if (m_handle != nullptr) return;
  const auto error = static_cast<int>(GetLastError());
  throw CLibraryError("Cannot load " + file + ": " + std::system_category().message(error));
}

CSharedLibrary::~CSharedLibrary() { FreeLibrary(static_cast<HMODULE>(m_handle)); }

CSharedLibrary::AnyFunction CSharedLibrary::FindFunction(const char* name) const {
  const FARPROC function = GetProcAddress(static_cast<HMODULE>(m_handle), name);
  if (function == nullptr) throw CLibraryError(m_file + " has no function " + name);
  return reinterpret_cast<AnyFunction>(function);
}

}  // namespace host

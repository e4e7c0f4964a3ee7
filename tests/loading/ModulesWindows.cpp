#include "Modules.h"

#include <windows.h>

#include <filesystem>

namespace modules {

// The libraries are beside the program, where Windows looks for them first. Paths of the build may not be paths there.
namespace {
std::wstring NameOf(const std::string& file) { return std::filesystem::path(file).filename().wstring(); }
}  // namespace

void* Load(const std::string& file) { return LoadLibraryW(NameOf(file).c_str()); }

void Unload(void* library) { FreeLibrary(static_cast<HMODULE>(library)); }

void* Find(void* library, const char* symbol) {
  return reinterpret_cast<void*>(GetProcAddress(static_cast<HMODULE>(library), symbol));
}

bool IsLoaded(const std::string& file) { return GetModuleHandleW(NameOf(file).c_str()) != nullptr; }

}  // namespace modules

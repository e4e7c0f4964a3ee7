// Shared libraries of this process, through the system's own calls.
#pragma once

#include <string>

namespace modules {

/// Loads a library; null if that fails.
void* Load(const std::string& file);

void Unload(void* library);

/// The address of a symbol; null if the library does not export it.
void* Find(void* library, const char* symbol);

/// Whether the library is in the process, whoever loaded it.
bool IsLoaded(const std::string& file);

}  // namespace modules

// Shared libraries of this process, by the system's own calls.
#pragma once

#include <string>

namespace modules {

/// Loads a library; null when it cannot be loaded.
void* Load(const std::string& file);

void Unload(void* library);

/// Where a symbol is; null when the library exports none of that name.
void* Find(void* library, const char* symbol);

/// Whether the library is in the process, whoever loaded it.
bool IsLoaded(const std::string& file);

}  // namespace modules

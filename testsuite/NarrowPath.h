// File names as the host has them.
#pragma once

#include <filesystem>

/// The path that a narrow name stands for: on Windows in the code page of file functions, elsewhere the name's own
/// bytes. Not every standard library's own conversion asks Windows for its code page.
std::filesystem::path NarrowToPath(const char* name);

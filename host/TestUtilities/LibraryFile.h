// The file of this library.
#pragma once

#include <filesystem>

/// The absolute path by which this library was loaded; empty if the system does not tell.
/// \throws std::exception
std::filesystem::path LibraryFile();

// Where this library lies.
#pragma once

#include <filesystem>
#include <vector>

/// The directories of this library's file: that of the path by which it was loaded and, when symbolic links are on that
/// path, that of the file itself. They are absolute and found out while the library is loaded, because the path may be
/// relative to the directory that is the current one then. Empty when they cannot be found out.
const std::vector<std::filesystem::path>& LibraryDirectories() noexcept;

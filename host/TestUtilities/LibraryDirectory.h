// Where this library is installed.
#pragma once

#include <filesystem>
#include <vector>

/// The directories of this library's file: that of the path by which it was loaded and, if that path contains symbolic
/// links, that of the file itself. They are absolute, and determined while the library is loaded, because the path may
/// be relative to the current directory at that time. Empty if they cannot be determined.
const std::vector<std::filesystem::path>& LibraryDirectories() noexcept;

// The first bytes of a file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace vifanalysis {

/// The bytes that a file begins with, so many at most; fewer, or none, where it is shorter or cannot be read. Opens
/// nothing but a regular file and waits for nothing, even if a pipe has taken the file's name.
std::string FileBeginning(const std::filesystem::path& path, std::size_t most);

}  // namespace vifanalysis

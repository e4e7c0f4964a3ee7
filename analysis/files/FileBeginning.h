// The first bytes of a file.
#pragma once

#include <cstddef>
#include <filesystem>
#include <string>

namespace vifanalysis {

/// The first bytes of a file, at most that many; fewer, or none, where it is shorter or cannot be read. Opens only
/// regular files and never waits, even if a pipe has taken the file's name.
std::string FileBeginning(const std::filesystem::path& path, std::size_t most);

}  // namespace vifanalysis

// The files that an operator can choose.
#pragma once

#include <filesystem>
#include <vector>

namespace host {

/// Whether a file's extension says that it is a VIF: ".txt" or ".xml" in any letter case. The library decides by it,
/// too.
bool HasVifExtension(const std::filesystem::path& file);

/// The VIFs in a directory, sorted by name; none if it cannot be read.
std::vector<std::filesystem::path> ListVifs(const std::filesystem::path& directory);

}  // namespace host

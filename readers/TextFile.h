// Opens text files.
#pragma once

#include <filesystem>
#include <istream>
#include <memory>

namespace vif {

/// A regular file's text, from its beginning. That it cannot be read on shows in the stream as `badbit`.
/// \return null when it cannot be opened or is no regular file: a directory, a pipe or a device may never end
std::unique_ptr<std::istream> OpenTextFile(const std::filesystem::path& path);

}  // namespace vif

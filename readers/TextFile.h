// Opens text files.
#pragma once

#include <filesystem>
#include <istream>
#include <memory>
#include <string_view>

namespace vif {

/// Opens a regular file for reading. A read error sets the stream's `badbit`.
/// \return null when the file cannot be opened or is not a regular file: a directory, a pipe or a device may never end
std::unique_ptr<std::istream> OpenTextFile(const std::filesystem::path& path);

/// Opens the content of a file, in memory, which is borrowed. On Windows it ends where a text file does: before the
/// first Ctrl-Z.
std::unique_ptr<std::istream> OpenTextContent(std::string_view content);

}  // namespace vif

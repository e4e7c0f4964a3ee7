// Loads the files named on the command line.
#pragma once

#include <VendorInfoFile.h>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// One object with the fields of all files, in the order given.
/// \throws Failure with the name of the file that cannot be loaded and the reason
CVendorInfoFile LoadFiles(const std::vector<std::string>& fileNames);

/// Calls `read`, which reads that file.
/// \throws Failure with the name of the file and the reason why it cannot be read
void ReadFile(const std::string& fileName, const std::function<void()>& read);

/// The number of the line where reading the file fails, whatever the file holds; nothing when all of it can be read.
/// Opens nothing but a regular file and waits for nothing, even if a pipe has taken the file's name.
/// \throws CZoRunTimeException when it cannot be opened
std::optional<std::size_t> FirstUnreadableLine(const std::filesystem::path& path);

/// Whether a path has that extension in any letter case.
/// \param extension in lower case, with its dot
bool HasExtension(const std::filesystem::path& path, std::string_view extension);

}  // namespace cli

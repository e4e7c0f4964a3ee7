// Loads the files that a command is given.
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
/// \throws Failure that names the file which could not be loaded, and why
CVendorInfoFile LoadFiles(const std::vector<std::string>& fileNames);

/// Runs what reads one file.
/// \throws Failure that names the file, and why it could not be read
void ReadFile(const std::string& fileName, const std::function<void()>& read);

/// The path that a UTF-8 name stands for; outside Windows its bytes are taken as they are.
std::filesystem::path PathOf(const std::string& fileName);

/// The line from which on a file cannot be read, whatever it holds; nothing when all of it can be. Only a regular file
/// is opened, even if another one has the name by now, so there is no waiting.
/// \throws CZoRunTimeException when it cannot be opened
std::optional<std::size_t> FirstUnreadableLine(const std::filesystem::path& path);

/// Whether a path has that extension, which is given in small letters, in any letter case.
bool HasExtension(const std::filesystem::path& path, std::string_view extension);

}  // namespace cli

// Loads the files that a command is given.
#pragma once

#include <VendorInfoFile.h>

#include <filesystem>
#include <functional>
#include <string>
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

}  // namespace cli

// Loads the files that a command is given.
#pragma once

#include <VendorInfoFile.h>

#include <string>
#include <vector>

namespace tool {

/// One object with the fields of all files, in the order given.
/// \throws Failure that names the file which could not be loaded, and why
CVendorInfoFile LoadFiles(const std::vector<std::string>& fileNames);

}  // namespace tool

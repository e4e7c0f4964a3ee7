// Loads the files that a command is given.
#pragma once

#include <VendorInfoFile.h>

#include <string>
#include <vector>

namespace tool {

/// One object with the fields of all files, in the order given.
/// \throws Failure that names the file which could not be loaded, and why
CVendorInfoFile LoadFiles(const std::vector<std::string>& fileNames);

/// To be called where an exception of loading a file has been caught.
/// \throws Failure that names the file and says why, but for std::bad_alloc, which passes
[[noreturn]] void RethrowAsFailure(const std::string& fileName);

}  // namespace tool

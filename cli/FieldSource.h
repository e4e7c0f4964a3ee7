// Loads the files named on the command line.
#pragma once

#include <VendorInfoFile.h>
#include <analysis/Check.h>

#include <filesystem>
#include <functional>
#include <string>
#include <vector>

namespace cli {

/// One object with the fields of all files, in the order given.
/// \throws Failure with the name of the file that cannot be loaded and the reason
CVendorInfoFile LoadFiles(const std::vector<std::string>& fileNames);

/// Calls `read`, which reads that file.
/// \throws Failure with the name of the file and the reason why it cannot be read
void ReadFile(const std::string& fileName, const std::function<void()>& read);

/// What checking the file finds.
/// \throws Failure with the name of the file and the reason why it cannot be read
std::vector<vifanalysis::Finding> FindingsIn(const std::string& fileName,
                                             const vifanalysis::CheckOptions& options = {});

}  // namespace cli

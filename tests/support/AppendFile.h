// Appends files by path.
#pragma once

#include "VendorInfoFile.h"

#include <filesystem>
#include <string>

namespace testsupport {

inline void AppendFile(CVendorInfoFile& vif, const std::filesystem::path& path) {
  // UTF-8 where the system's names are wide; elsewhere the name's own bytes.
  const std::u8string name = path.u8string();
  vif.Append(std::string(name.begin(), name.end()).c_str());
}

}  // namespace testsupport

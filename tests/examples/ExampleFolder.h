// The example files.
#pragma once

#include <filesystem>
#include <string>

/// The path of an example VIF.
inline std::filesystem::path ExampleVif(const std::string& name) {
  return std::filesystem::path(EXAMPLES_FOLDER) / "vif" / name;
}

// Runs commands as documentation shows them.
#pragma once

#include <filesystem>
#include <string>
#include <vector>

namespace testsupport {

/// The folder of the example VIFs.
std::filesystem::path ExampleFolder();

/// Runs a command line in a folder, with `vif` on the path, and returns the lines of its output.
///
/// Needs no shell, as not every system has one. The line may begin with `cd DIR &&`; then comes `vif` or `cat FILE`;
/// and it may end with one of `| head -n N`, `| grep -e TEXT...` and `| sed -n '/TEXT/,$p'`. Texts are taken literally.
/// \throws std::runtime_error for anything else
std::vector<std::string> RunDocumented(const std::string& line, std::filesystem::path folder = ExampleFolder());

}  // namespace testsupport

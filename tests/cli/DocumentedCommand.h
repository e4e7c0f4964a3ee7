// Runs commands as documentation shows them.
#pragma once

#include <string>
#include <vector>

namespace testsupport {

/// Runs a command line in the folder of the examples, with `vif` on the path, and returns the lines of its output.
///
/// Needs no shell, as not every system has one. The line may begin with `cd DIR &&`; then comes `vif` or `cat FILE`;
/// and it may end with one of `| head -n N`, `| grep -e TEXT...` and `| sed -n '/TEXT/,$p'`. Texts are taken literally.
/// \throws std::runtime_error for anything else
std::vector<std::string> RunDocumented(const std::string& line);

}  // namespace testsupport

// Runs commands as documentation shows them.
#pragma once

#include <string>
#include <vector>

namespace testsupport {

/// Runs a command line in the folder of the examples, with `vif` on the path, and gives back what it shows.
///
/// It is taken apart here, as not every system has a shell. It may begin with `cd DIR &&`; then comes `vif` or
/// `cat FILE`; and it may end with one of `| head -n N`, `| grep -e TEXT...` and `| sed -n '/TEXT/,$p'`. Texts are what
/// they say, not patterns. Anything else is a `std::runtime_error`.
std::vector<std::string> RunDocumented(const std::string& line);

}  // namespace testsupport

// Output into a file.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace cli {

/// Writes a file, replacing one of that name.
/// \param inputs files that were read; none of them is replaced
/// \throws Failure with the name of the file and the reason when that fails
void WriteFile(const std::string& fileName, std::string_view content, const std::vector<std::string>& inputs);

}  // namespace cli

// Prints findings.
#pragma once

#include "Finding.h"

#include <vector>

namespace cli {

/// One finding a line, like a compiler, and a last line that counts them.
void WriteFindingsAsText(const std::vector<CheckedFile>& files);

/// One JSON object with the files, their findings and the counts, each finding on a line of its own.
void WriteFindingsAsJson(const std::vector<CheckedFile>& files);

/// The number of findings of that severity in all files.
std::size_t CountFindings(const std::vector<CheckedFile>& files, Severity severity);

}  // namespace cli

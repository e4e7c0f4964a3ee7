// Prints findings.
#pragma once

#include <analysis/Writers.h>

#include <cstddef>
#include <vector>

namespace cli {

using CheckedFile = vifanalysis::FileFindings;

/// One finding a line, like a compiler, and a last line that counts them.
void WriteFindingsAsText(const std::vector<CheckedFile>& files);

/// SARIF 2.1.0, with all rules.
void WriteFindingsAsSarif(const std::vector<CheckedFile>& files);

/// The number of findings of that severity in all files.
std::size_t CountFindings(const std::vector<CheckedFile>& files, vifanalysis::Severity severity);

}  // namespace cli

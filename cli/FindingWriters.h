// Prints findings.
#pragma once

#include <analysis/Writers.h>

#include <vector>

namespace cli {

using CheckedFile = vifanalysis::FileFindings;

/// One finding a line, like a compiler, and a last line that counts them.
void WriteFindingsAsText(const std::vector<CheckedFile>& files);

/// SARIF 2.1.0, with all rules.
void WriteFindingsAsSarif(const std::vector<CheckedFile>& files);

}  // namespace cli

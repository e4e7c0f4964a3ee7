// Prints findings.
#pragma once

#include <analysis/Finding.h>

#include <cstddef>
#include <string>
#include <vector>

namespace cli {

/// One file and its findings, in the order of the file.
struct CheckedFile {
  std::string name;
  std::vector<vifanalysis::Finding> findings;

  std::size_t Count(vifanalysis::Severity severity) const;
};

/// One finding a line, like a compiler, and a last line that counts them.
void WriteFindingsAsText(const std::vector<CheckedFile>& files);

/// One JSON object with the files, their findings and the counts, each finding on a line of its own.
void WriteFindingsAsJson(const std::vector<CheckedFile>& files);

/// SARIF 2.1.0, with all rules.
void WriteFindingsAsSarif(const std::vector<CheckedFile>& files);

/// The number of findings of that severity in all files.
std::size_t CountFindings(const std::vector<CheckedFile>& files, vifanalysis::Severity severity);

}  // namespace cli

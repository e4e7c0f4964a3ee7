// Prints how files or ports differ.
#pragma once

#include <analysis/Differences.h>

#include <cstddef>
#include <string>
#include <vector>

namespace cli {

/// How two files differ.
struct FileComparison {
  std::string before;  ///< the name of the first file
  std::string after;   ///< the name of the second file
  vifanalysis::Differences differences;
  vifanalysis::FindingChanges findings;
};

/// How ports of one file differ.
struct FilePorts {
  std::string file;
  std::size_t components = 0;  ///< the number of components in the file
  std::vector<vifanalysis::PortComparison> ports;

  /// Whether no port differs.
  bool AreSame() const;
};

/// One difference a line, under headings with the component, and last lines that count the differences and the findings
/// that came or went.
void WriteComparisonAsText(const FileComparison& comparison, bool withDescriptions);

/// The same for each port.
void WritePortsAsText(const FilePorts& ports, bool withDescriptions);

/// One JSON object, each difference on a line of its own.
void WriteComparisonAsJson(const FileComparison& comparison);
void WritePortsAsJson(const FilePorts& ports);

}  // namespace cli

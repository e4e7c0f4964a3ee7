// Prints how files or ports differ.
#pragma once

#include <analysis/Writers.h>

namespace cli {

using vifanalysis::FileComparison;
using vifanalysis::FilePorts;

/// One difference a line, under headings with the component, and last lines that count the differences and the findings
/// that came or went.
void WriteComparisonAsText(const FileComparison& comparison, bool withDescriptions);

/// The same for each port.
void WritePortsAsText(const FilePorts& ports, bool withDescriptions);

}  // namespace cli

// Prints a list of fields.
#pragma once

#include <VendorInfoFile.h>

#include <string>
#include <vector>

namespace cli {

/// A table with one field a line. Lines are cut to the width of a terminal.
void WriteTable(const CVendorInfoFile& vif);

/// One JSON object: the file names, the component count and the fields, each on a line of its own.
void WriteJson(const std::vector<std::string>& fileNames, const CVendorInfoFile& vif);

/// Comma-separated values with a header line (RFC 4180).
void WriteCsv(const CVendorInfoFile& vif);

}  // namespace cli

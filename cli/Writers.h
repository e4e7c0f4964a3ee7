// The forms in which a list of fields can be printed.
#pragma once

#include <VendorInfoFile.h>

#include <string>
#include <vector>

namespace cli {

/// A table for people: one field a line, in aligned columns. On a terminal the lines are cut to its width.
void WriteTable(const CVendorInfoFile& vif);

/// One JSON object: the file names, the component count and the fields, each on a line of its own.
void WriteJson(const std::vector<std::string>& fileNames, const CVendorInfoFile& vif);

/// Comma-separated values with a header line, as RFC 4180 has them.
void WriteCsv(const CVendorInfoFile& vif);

}  // namespace cli

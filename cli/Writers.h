// Prints a list of fields.
#pragma once

#include <VendorInfoFile.h>

namespace cli {

/// A table with one field a line. Lines are cut to the width of a terminal.
void WriteTable(const CVendorInfoFile& vif);

}  // namespace cli

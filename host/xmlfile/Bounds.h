// Whether an XML file keeps within the bounds (`Limits.h`).
#pragma once

#include "TestUtilities/DOMDocProblem.h"
#include "xmlfile/FileText.h"

#include <cstddef>
#include <optional>

namespace xmlfile {

/// The result of checking a file's tags.
struct Bounds {
  std::optional<DOMDocProblem> problem;  ///< the first violation of the bounds, if any
  std::size_t end = 0;                   ///< where it begins in the text; the end of the text if there is none
  std::size_t tagCount = 0;              ///< the number of start tags before it
};

/// Searches a file for what no parser should see or what would take a parser too long. In a malformed file, it may miss
/// what comes after the first error: a parser must not continue much further than that.
Bounds CheckBounds(const FileText& file);

}  // namespace xmlfile

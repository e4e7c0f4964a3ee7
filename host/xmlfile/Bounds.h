// Whether an XML file keeps within the bounds (`Limits.h`).
#pragma once

#include "TestUtilities/DOMDocProblem.h"
#include "xmlfile/FileText.h"

#include <cstddef>
#include <optional>

namespace xmlfile {

/// What a look at a file's tags has found.
struct Bounds {
  std::optional<DOMDocProblem> problem;  ///< what goes beyond the bounds first, if anything does
  std::size_t end = 0;                   ///< where in the text that begins; the end of the text when nothing does
  std::size_t tagCount = 0;              ///< how many start tags there are before
};

/// Looks through a file for what no parser is to see or would take too long for. If the file is malformed, what comes
/// after the first mistake may be overlooked: a parser must not go much further than that.
Bounds CheckBounds(const FileText& file);

}  // namespace xmlfile

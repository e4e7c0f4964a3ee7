// Finds errors in a file's markup that not every MSXML reports.
#pragma once

#include "TestUtilities/DOMDocProblem.h"
#include "xmlfile/FileText.h"

#include <cstddef>
#include <optional>

namespace msxml6 {

struct MarkupFindings {
  std::optional<DOMDocProblem> problem;   ///< an error that keeps the file from MSXML
  std::optional<DOMDocProblem> mismatch;  ///< the first start or end tag without its counterpart
};

/// Searches a file for names with an undeclared prefix, which not every MSXML reports, and for errors after which a
/// parser that continues may find tags where there are none.
/// \param end where in the text to stop
MarkupFindings CheckMarkup(const xmlfile::FileText& file, std::size_t end);

}  // namespace msxml6

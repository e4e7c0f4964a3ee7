// What a look at a file's markup tells that not every MSXML does.
#pragma once

#include "TestUtilities/DOMDocProblem.h"
#include "xmlfile/FileText.h"

#include <cstddef>
#include <optional>

namespace msxml6 {

struct MarkupFindings {
  std::optional<DOMDocProblem> problem;   ///< a mistake for which a file is not to reach MSXML
  std::optional<DOMDocProblem> mismatch;  ///< the first start or end tag without the other
};

/// Looks through a file for names whose prefix is not declared, which not every MSXML finds, and for mistakes after
/// which a parser that goes on may find tags where there are none.
/// \param end where to stop in the text
MarkupFindings CheckMarkup(const xmlfile::FileText& file, std::size_t end);

}  // namespace msxml6

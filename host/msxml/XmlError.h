// What libxml2 reports, as a problem.
#pragma once

#include "msxml/Problems.h"

#include <libxml/xmlerror.h>

namespace msxml {

/// Warnings are passed over.
inline void AddError(CProblems& problems, const xmlError& error, std::size_t line, std::size_t column,
                     std::string_view element) noexcept {
  if (error.code == XML_ERR_NO_MEMORY) {
    problems.RanOutOfMemory();
  } else if (error.level != XML_ERR_WARNING) {
    problems.Add(line, column, element, error.message != nullptr ? error.message : "unknown error");
  }
}

}  // namespace msxml

// A finding of `vif check`.
#pragma once

#include "Codes.h"

#include <VIFField.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace cli {

/// One field of a checked file and where it is declared. To the rules, a file of either form is a list of these.
struct FoundField {
  CVIFField field;
  std::size_t line = 0;    ///< from 1; 0 when not known
  std::size_t column = 0;  ///< from 1; 0 when not known, as in all text files
  std::string element;     ///< the field's name in a text file, the element's path in an XML file
};

/// One finding. Text from the file is printable and shortened in the message, but unchanged in the element.
struct Finding {
  const FindingCode* code;  ///< one of those in Codes.h
  std::size_t line;         ///< from 1; 0 when not known
  std::size_t column;       ///< from 1; 0 when not known
  std::string element;      ///< the field or element; empty when there is none
  std::string message;      ///< says what is wrong, without a full stop
};

/// A finding about one field.
inline Finding About(const FoundField& found, const FindingCode& code, std::string message) {
  return {&code, found.line, found.column, found.element, std::move(message)};
}

/// One file and its findings, in the order of the file.
struct CheckedFile {
  std::string name;
  std::vector<Finding> findings;

  std::size_t Count(Severity severity) const {
    return static_cast<std::size_t>(std::count_if(
        findings.begin(), findings.end(), [&](const Finding& finding) { return finding.code->severity == severity; }));
  }
};

}  // namespace cli

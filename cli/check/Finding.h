// What `vif check` has to say about a file.
#pragma once

#include "Codes.h"

#include <VIFField.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

namespace cli {

/// One field of a checked file and where it is declared. For the rules, the two forms of a file are a list of these.
struct FoundField {
  CVIFField field;
  std::size_t line = 0;    ///< from 1; 0 when not known
  std::size_t column = 0;  ///< from 1; 0 when not known, which it never is for a text file
  std::string element;     ///< what a finding about it names: the field in a text file, the path in an XML file
};

/// One thing found. What the file holds appears in the message printable and shortened, in the element as it is.
struct Finding {
  const FindingCode* code;  ///< one of Codes.h; it has the severity
  std::size_t line;         ///< from 1; 0 when it is at no place that is known
  std::size_t column;       ///< the same
  std::string element;      ///< the field or element concerned; empty when there is none
  std::string message;      ///< what is wrong, as a sentence without a full stop
};

/// A finding about one field.
inline Finding About(const FoundField& found, const FindingCode& code, std::string message) {
  return {&code, found.line, found.column, found.element, std::move(message)};
}

/// One file and all that was found in it, in the order of the file.
struct CheckedFile {
  std::string name;
  std::vector<Finding> findings;

  std::size_t Count(Severity severity) const {
    return static_cast<std::size_t>(std::count_if(
        findings.begin(), findings.end(), [&](const Finding& finding) { return finding.code->severity == severity; }));
  }
};

}  // namespace cli

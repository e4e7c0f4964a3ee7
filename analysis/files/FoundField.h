// Fields with the places where a file declares them, and findings about them.
#pragma once

#include "Codes.h"

#include <VIFField.h>
#include <analysis/Edition.h>
#include <analysis/Finding.h>

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace vifanalysis {

/// One field of a checked file and where it is declared. To the rules, a file of either form is a list of these.
struct FoundField {
  CVIFField field;
  std::size_t line = 0;                         ///< from 1; 0 when not known
  std::size_t column = 0;                       ///< from 1; 0 when not known, as in all text files
  std::string element;                          ///< the field's name in a text file, the element's path in an XML file
  std::size_t position = Finding::kNoPosition;  ///< its index among the fields that loading yields
};

/// A name that no definition knows, and where the file has it.
struct UndefinedName {
  std::string name;                             ///< as the file writes it
  std::size_t line = 0;                         ///< from 1; 0 when not known
  std::size_t column = 0;                       ///< from 1; 0 when not known, as in all text files
  std::string element;                          ///< the name in a text file, the element's path in an XML file
  std::size_t position = Finding::kNoPosition;  ///< of the field that loading makes of it, as in `FoundField`
};

using UndefinedNames = std::vector<UndefinedName>;
using FoundFields = std::vector<FoundField>;
using Findings = std::vector<Finding>;

/// The edition that the fields name, as the public function of that name has it.
std::optional<Edition> EditionNamedBy(const FoundFields& fields);

/// A finding at a place of the file.
inline Finding FindingAt(const RuleInfo& rule, std::size_t line, std::size_t column, std::string element,
                         std::string message) {
  return {rule.severity, rule.code, line, column, std::move(element), std::move(message), Finding::kNoPosition};
}

/// A finding about one field.
inline Finding About(const FoundField& found, const RuleInfo& rule, std::string message) {
  Finding finding = FindingAt(rule, found.line, found.column, found.element, std::move(message));
  finding.position = found.position;
  return finding;
}

}  // namespace vifanalysis

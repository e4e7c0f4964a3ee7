// A name pattern of a query, made ready to be matched with many names.
#pragma once

#include "PlainPattern.h"

#include <locale>
#include <optional>
#include <regex>

namespace vif {

/// A regular expression (ECMAScript) for whole names, without regard to letter case as the global locale has it
/// when the pattern is made. A pattern without special characters is compared character by character, the way
/// the expression would, and needs neither a regular expression nor memory.
///
/// Not for use by several threads at once.
class CNamePattern {
 public:
  /// \param pattern neither null nor empty; borrowed, so it must outlive the object
  /// \throws std::regex_error when it is no regular expression, or one too deep for the stack (`error_stack`)
  explicit CNamePattern(const char* pattern);

  /// Whether the whole name fits.
  /// \throws std::regex_error (`error_stack`, `error_complexity`) when the match would take too much stack or time.
  ///   A pattern that neither refers back to a group nor looks ahead gives an answer for names of millions of bytes.
  bool Matches(const char* name) {
    const char* rest = m_beginning.Behind(name);
    if (rest == nullptr) return false;
    return m_expression ? MatchesExpression(*m_expression, name) : *rest == '\0';
  }

 private:
  bool MatchesExpression(const std::regex& expression, const char* name);

  /// Makes `m_stepwise`; false when there is no such way for the pattern.
  bool CompileStepwise();

  const char* m_pattern;
  std::locale m_locale;
  CPlainPattern m_beginning;               // of every name that fits; for a plain pattern all of it
  std::optional<std::regex> m_expression;  // nothing for a plain pattern
  std::optional<std::regex> m_stepwise;    // takes its place from the first name that was too much for it
};

}  // namespace vif

// A name pattern of a query, made ready to be matched with many names.
#pragma once

#include "GuardedRegex.h"
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
  /// \throws std::regex_error when it is not a regular expression, or when compiling it would take more stack than the
  ///   thread has left (`error_stack`), too long (`error_complexity`) or too much memory (`error_space`)
  explicit CNamePattern(const char* pattern);

  /// Whether the whole name fits.
  /// \throws std::regex_error (`error_stack`, `error_complexity`) when the match would take too much stack or time.
  ///   A pattern that neither refers back to a group nor looks ahead gives an answer for names of millions of bytes.
  bool Matches(const char* name) {
    const char* rest = m_beginning.Behind(name);
    if (rest == nullptr) return false;
    return m_expression ? MatchesExpression(name) : *rest == '\0';
  }

 private:
  bool MatchesExpression(const char* name);

  std::locale m_locale;
  CPlainPattern m_beginning;               // of every name that fits; for a plain pattern all of it
  std::optional<std::regex> m_expression;  // nothing for a plain pattern
  CGuardedMatcher m_matcher{{}};
};

}  // namespace vif

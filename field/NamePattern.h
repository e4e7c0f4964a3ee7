// The name pattern of a query, prepared for matching many names.
#pragma once

#include "GuardedRegex.h"
#include "PlainPattern.h"

#include <locale>
#include <optional>
#include <regex>

namespace vif {

/// A regular expression (ECMAScript) for whole names, ignoring letter case as the global locale defines it when the
/// pattern is constructed. A pattern without special characters is compared character by character, with the same
/// result, and needs neither a regular expression nor memory.
///
/// Not safe for use by several threads at once.
class CNamePattern {
 public:
  /// \param pattern neither null nor empty; borrowed, so it must outlive the object
  /// \throws std::regex_error if it is not a regular expression, or if compiling it would take more stack than the
  ///   thread has left (`error_stack`), too long (`error_complexity`) or too much memory (`error_space`)
  explicit CNamePattern(const char* pattern);

  /// Whether the pattern matches the whole name.
  /// \throws std::regex_error (`error_stack`, `error_complexity`) if the match would take too much stack or time.
  ///   Without back-references and look-ahead, names may have millions of bytes
  bool Matches(const char* name) {
    const char* rest = m_beginning.After(name);
    if (rest == nullptr) return false;
    return m_expression ? MatchesExpression(name) : *rest == '\0';
  }

 private:
  bool MatchesExpression(const char* name);

  std::locale m_locale;
  CPlainPattern m_beginning;               // of every matching name; for a plain pattern, all of it
  std::optional<std::regex> m_expression;  // absent for a plain pattern
  CGuardedMatcher m_matcher{{}};
};

}  // namespace vif

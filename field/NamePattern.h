// A name pattern of a query, made ready to be matched with many names.
#pragma once

#include <locale>
#include <optional>
#include <regex>
#include <string>

namespace vif {

/// A regular expression (ECMAScript) for whole names, without regard to letter case as the global locale has it
/// when the pattern is made. A pattern without special characters is compared character by character, the way
/// the expression would, and needs no regular expression.
///
/// Not for use by several threads at once.
class CNamePattern {
 public:
  /// \param pattern neither null nor empty
  /// \throws std::regex_error when it is no regular expression
  explicit CNamePattern(const char* pattern);

  /// Whether the whole name fits.
  /// \throws std::regex_error when the match would need too much stack
  bool Matches(const char* name);

 private:
  bool MatchesPlain(const char* name) const;
  bool MatchesLong(const char* name);

  std::string m_pattern;
  std::locale m_locale;
  const std::ctype<char>& m_ctype;
  std::string m_lowerCase;                       // of a plain pattern
  std::optional<std::regex> m_expression;        // of any other
  std::optional<std::regex> m_withoutRecursion;  // the same for names too long for it, made when one comes
};

}  // namespace vif

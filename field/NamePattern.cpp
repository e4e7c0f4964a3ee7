#include "NamePattern.h"

#include "GuardedRegex.h"
#include "PatternDepth.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

namespace vif {

namespace {

constexpr std::string_view kQuantifiers = "*+?{";

/// A stepwise match takes a few steps for each character, and more than one for each pair of them only where a pattern
/// looks ahead. This ends the longest after a second or two.
constexpr std::size_t kStepwiseStepBudget = 100'000'000;

constexpr auto kSyntax = std::regex_constants::ECMAScript | std::regex_constants::icase;

/// What every name begins with that the pattern fits, as far as that is seen easily: its plain characters up to the
/// first special one. Names that begin otherwise need not be matched, without which "Src_PDO_.*" over fields of all
/// kinds would take four times as long.
std::string_view Beginning(std::string_view pattern) {
  if (IsPlainPattern(pattern)) return pattern;
  if (pattern.find('|') != std::string_view::npos) return {};  // the other alternative begins in its own way
  const std::size_t end = pattern.find_first_of(kSpecialCharacters);
  const bool isLastOneQuantified = end > 0 && kQuantifiers.find(pattern[end]) != std::string_view::npos;
  return pattern.substr(0, isLastOneQuantified ? end - 1 : end);
}

/// Whether the pattern refers back to a group by a number that has too many digits for any group. libstdc++ lets such
/// a number overflow, and may take it for that of a group that there is.
bool RefersBeyondAllGroups(std::string_view pattern) {
  constexpr std::size_t mostDigits = 9;
  for (std::size_t i = pattern.find('\\'); i < pattern.size(); i = pattern.find('\\', i + 2)) {
    const std::size_t digits = i + 1;
    const std::size_t end = std::min(pattern.find_first_not_of("0123456789", digits), pattern.size());
    if (end > digits + mostDigits && pattern[digits] != '0') return true;
  }
  return false;
}

// libstdc++ fills the character tables of the locale, which all threads share, while it compiles the first
// expressions, and takes no lock for it. So they are filled here, while the library is loaded and before threads can
// come. The second argument of `narrow` is a character that no other is narrowed to, or the result is not kept.
// NOLINTNEXTLINE(cert-err58-cpp): a program without a locale does not come this far
[[maybe_unused]] const bool characterTablesAreFilled = [] {
  const std::locale locale;
  const auto& ctype = std::use_facet<std::ctype<char>>(locale);
  for (int c = 1; c < 256; ++c) ctype.narrow(static_cast<char>(c), '\0');
  return ctype.widen('a') == 'a';
}();

}  // namespace

CNamePattern::CNamePattern(const char* pattern)
    : m_pattern(pattern), m_beginning(Beginning(pattern), std::use_facet<std::ctype<char>>(m_locale)) {
  if (IsPlainPattern(pattern)) return;
  if (PatternDepth(pattern) > kMaxPatternDepth) throw std::regex_error(std::regex_constants::error_stack);
  if (RefersBeyondAllGroups(pattern)) throw std::regex_error(std::regex_constants::error_backref);
  m_expression.emplace(pattern, kSyntax);
}

bool CNamePattern::MatchesExpression(const std::regex& expression, const char* name) {
  GuardedMatch<char> match;
  if (!m_stepwise) {
    try {
      return GuardedRegexMatch(std::string_view(name), match, expression);
    } catch (const std::regex_error&) {
      if (!CompileStepwise()) throw;
    }
  }
  return GuardedRegexMatch(std::string_view(name), match, *m_stepwise, kStepwiseStepBudget);
}

bool CNamePattern::CompileStepwise() {
  if (VIF_REGEX_STEPWISE == std::regex_constants::syntax_option_type{}) return false;
  try {
    std::regex expression;
    expression.imbue(m_locale);  // the global locale may be another one by now
    expression.assign(m_pattern, kSyntax | VIF_REGEX_STEPWISE);
    m_stepwise = std::move(expression);
    return true;
  } catch (const std::regex_error&) {
    return false;  // the pattern is sound, or it would not have come this far: it refers back to a group
  }
}

}  // namespace vif

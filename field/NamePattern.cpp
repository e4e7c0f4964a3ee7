#include "NamePattern.h"

#include "GuardedRegex.h"
#include "PatternDepth.h"

#include <cstring>
#include <string_view>

namespace vif {

namespace {

constexpr const char* kSpecialCharacters = "^$\\.*+?()[]{}|";
/// A stepwise match takes a few steps for each character, and more than one for each pair of them only where a pattern
/// looks ahead. This ends the longest after a second or two.
constexpr std::size_t kStepwiseStepBudget = 100'000'000;

constexpr auto kSyntax = std::regex_constants::ECMAScript | std::regex_constants::icase;

/// The expression for the letter case of that locale; the global one may be another by now.
std::regex CompileStepwise(const char* pattern, const std::locale& locale) {
  std::regex expression;
  expression.imbue(locale);
  expression.assign(pattern, kSyntax | VIF_REGEX_STEPWISE);
  return expression;
}

bool IsPlain(const char* pattern) { return std::strpbrk(pattern, kSpecialCharacters) == nullptr; }

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
    : m_pattern(pattern), m_ctype(std::use_facet<std::ctype<char>>(m_locale)) {
  if (IsPlain(pattern)) return;
  if (PatternDepth(pattern) > kMaxPatternDepth) throw std::regex_error(std::regex_constants::error_stack);
  m_expression.emplace(pattern, kSyntax);
}

bool CNamePattern::Matches(const char* name) {
  if (!m_expression) return MatchesPlain(name);
  if (m_stepwise) return MatchesStepwise(name, std::regex_constants::error_complexity);
  GuardedMatch<char> match;
  try {
    return GuardedRegexMatch(std::string_view(name), match, *m_expression);
  } catch (const std::regex_error& error) {
    if (VIF_REGEX_STEPWISE == std::regex_constants::syntax_option_type{}) throw;
    return MatchesStepwise(name, error.code());
  }
}

bool CNamePattern::MatchesPlain(const char* name) const {
  const char* expected = m_pattern;
  for (; *name != '\0' && *expected != '\0'; ++name, ++expected) {
    if (*name != *expected && m_ctype.tolower(*name) != m_ctype.tolower(*expected)) return false;
  }
  return *name == *expected;
}

bool CNamePattern::MatchesStepwise(const char* name, std::regex_constants::error_type reason) {
  try {
    if (!m_stepwise) m_stepwise = CompileStepwise(m_pattern, m_locale);
  } catch (const std::regex_error&) {
    // The pattern is sound, or it would not have come this far: it refers back to a group, and that cannot be
    // matched stepwise.
    throw std::regex_error(reason);
  }
  GuardedMatch<char> match;
  return GuardedRegexMatch(std::string_view(name), match, *m_stepwise, kStepwiseStepBudget);
}

}  // namespace vif

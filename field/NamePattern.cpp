#include "NamePattern.h"

#include "GuardedRegex.h"
#include "PatternDepth.h"

#include <cstring>
#include <string_view>
#include <utility>

namespace vif {

namespace {

constexpr const char* kSpecialCharacters = "^$\\.*+?()[]{}|";

/// A stepwise match takes a few steps for each character, and more than one for each pair of them only where a pattern
/// looks ahead. This ends the longest after a second or two.
constexpr std::size_t kStepwiseStepBudget = 100'000'000;

constexpr auto kSyntax = std::regex_constants::ECMAScript | std::regex_constants::icase;

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
  GuardedMatch<char> match;
  if (!m_stepwise) {
    try {
      return GuardedRegexMatch(std::string_view(name), match, *m_expression);
    } catch (const std::regex_error&) {
      if (!CompileStepwise()) throw;
    }
  }
  return GuardedRegexMatch(std::string_view(name), match, *m_stepwise, kStepwiseStepBudget);
}

bool CNamePattern::MatchesPlain(const char* name) const {
  const char* expected = m_pattern;
  for (; *name != '\0' && *expected != '\0'; ++name, ++expected) {
    if (*name != *expected && m_ctype.tolower(*name) != m_ctype.tolower(*expected)) return false;
  }
  return *name == *expected;
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

#include "NamePattern.h"

#include "GuardedRegex.h"

#include <cstring>
#include <string_view>
#include <utility>

namespace vif {

namespace {

constexpr std::string_view kSpecialCharacters = "^$\\.*+?()[]{}|";
constexpr auto kSyntax = std::regex_constants::ECMAScript | std::regex_constants::icase;

bool MatchesWhole(const char* name, const std::regex& expression) {
  GuardedMatch<char> match;
  return GuardedRegexMatch(std::string_view(name), match, expression);
}

}  // namespace

CNamePattern::CNamePattern(const char* pattern)
    : m_pattern(pattern), m_ctype(std::use_facet<std::ctype<char>>(m_locale)) {
  if (m_pattern.find_first_of(kSpecialCharacters) == std::string::npos) {
    m_lowerCase = m_pattern;
    m_ctype.tolower(m_lowerCase.data(), m_lowerCase.data() + m_lowerCase.size());
  } else {
    m_expression.emplace(m_pattern, kSyntax);
  }
}

bool CNamePattern::Matches(const char* name) {
  if (!m_expression) return MatchesPlain(name);
  if (m_withoutRecursion) return MatchesWhole(name, *m_withoutRecursion);
  try {
    return MatchesWhole(name, *m_expression);
  } catch (const std::regex_error& error) {
    if (error.code() != std::regex_constants::error_stack) throw;
  }
  return MatchesLong(name);
}

bool CNamePattern::MatchesPlain(const char* name) const {
  if (std::strlen(name) != m_lowerCase.size()) return false;
  for (size_t i = 0; i < m_lowerCase.size(); ++i) {
    if (name[i] != m_pattern[i] && m_ctype.tolower(name[i]) != m_lowerCase[i]) return false;
  }
  return true;
}

bool CNamePattern::MatchesLong(const char* name) {
  try {
    std::regex expression;
    expression.imbue(m_locale);  // the global locale may be another one by now
    expression.assign(m_pattern, kSyntax | VIF_REGEX_WITHOUT_RECURSION);
    m_withoutRecursion = std::move(expression);
  } catch (const std::regex_error&) {
    // The pattern itself is sound, or it would have failed before: it refers back to a group, and for that
    // there is no way without recursion.
    throw std::regex_error(std::regex_constants::error_stack);
  }
  return MatchesWhole(name, *m_withoutRecursion);
}

}  // namespace vif

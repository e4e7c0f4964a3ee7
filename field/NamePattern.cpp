#include "NamePattern.h"

#include "CharacterTables.h"
#include "PatternDepth.h"

#include <algorithm>
#include <cstddef>
#include <string_view>

namespace vif {

namespace {

constexpr std::string_view kQuantifiers = "*+?{";

constexpr auto kSyntax = std::regex_constants::ECMAScript | std::regex_constants::icase;

/// What every matching name must begin with, as far as that is easy to tell: the pattern's plain characters up to the
/// first special one. Names that begin otherwise need not be matched at all, which makes "Src_PDO_.*" over fields of
/// all kinds four times as fast.
std::string_view Beginning(std::string_view pattern) {
  if (IsPlainPattern(pattern)) return pattern;
  if (pattern.find('|') != std::string_view::npos) return {};  // the other alternative begins in its own way
  const std::size_t end = pattern.find_first_of(kSpecialCharacters);
  const bool isLastOneQuantified = end > 0 && kQuantifiers.find(pattern[end]) != std::string_view::npos;
  return pattern.substr(0, isLastOneQuantified ? end - 1 : end);
}

/// The largest number of digits after a backslash that may be a back-reference; 0 if there is none.
std::size_t LongestReference(std::string_view pattern) {
  std::size_t longest = 0;
  for (std::size_t i = pattern.find('\\'); i < pattern.size(); i = pattern.find('\\', i + 2)) {
    const std::size_t digits = i + 1;
    const std::size_t end = std::min(pattern.find_first_not_of("0123456789", digits), pattern.size());
    if (end > digits && pattern[digits] != '0') longest = std::max(longest, end - digits);
  }
  return longest;
}

/// A longer number is beyond all groups. libstdc++ lets it overflow, so that it may come out as the number of an
/// existing group.
constexpr std::size_t kMostReferenceDigits = 9;

/// How to compile the pattern. Captures take time, and in the stepwise engine memory that grows with the square of the
/// number of groups. Nobody reads them, but back-references need them.
std::regex::flag_type SyntaxOf(std::string_view pattern) {
  const std::size_t reference = LongestReference(pattern);
  if (reference > kMostReferenceDigits) throw std::regex_error(std::regex_constants::error_backref);
  return reference > 0 ? kSyntax : kSyntax | std::regex_constants::nosubs;
}

/// \throws std::regex_error if compiling the pattern would take more stack than there is, too long or too much memory
void RequireModestCost(std::string_view pattern) {
  const PatternCost cost = CostOf(pattern);
  if (cost.depth > StackLeft() / kStackPerDepth) ThrowStackTooSmall();
  if (cost.joints > kMostJoints) ThrowTooManySteps();
  if (cost.repetitions > kMostRepetitions) throw std::regex_error(std::regex_constants::error_space);
}

}  // namespace

CNamePattern::CNamePattern(const char* pattern)
    : m_beginning(Beginning(pattern), std::use_facet<std::ctype<char>>(m_locale)) {
  if (IsPlainPattern(pattern)) return;
  RequireModestCost(pattern);
  FillCharacterTables(m_locale);
  m_expression.emplace();
  m_expression->imbue(m_locale);  // the global locale may have changed by now
  m_expression->assign(pattern, SyntaxOf(pattern));
  m_matcher = CGuardedMatcher(ShapeOf(*m_expression));
}

bool CNamePattern::MatchesExpression(const char* name) {
  GuardedMatch<char> match;
  // NOLINTNEXTLINE(bugprone-unchecked-optional-access): only called where there is an expression
  return m_matcher.Match(std::string_view(name), match, *m_expression);
}

}  // namespace vif

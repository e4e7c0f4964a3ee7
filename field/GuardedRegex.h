// Runs std::regex on text of any length without running off the stack or for ever.
#pragma once

#include "Compiler.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <regex>
#include <string_view>

namespace vif {

/// How far one match may go down the stack. Field names need a few kilobytes. With what compiling the deepest pattern
/// takes, half a megabyte of free stack is enough for any query.
constexpr std::uintptr_t kMatchStackBudget = std::uintptr_t{256} * 1024;

/// How often one match may read a character or compare positions. Patterns that are not pathological do so a few times
/// for each character of a name.
constexpr std::size_t kMatchStepBudget = 1'000'000;

/// What is left to a match.
struct MatchBudget {
  std::uintptr_t lowestFrame = 0;
  std::size_t stepsLeft = kMatchStepBudget;

  /// Throws `std::regex_error` when the match has gone too deep or on for too long.
  void Check() {
    if (VIF_FRAME_ADDRESS() < lowestFrame) Fail(std::regex_constants::error_stack);
    if (stepsLeft-- == 0) Fail(std::regex_constants::error_complexity);
  }

 private:
  // Apart, so that `Check` is small enough to be inlined into the matcher, which goes through it for every character.
  [[noreturn]] static void Fail(std::regex_constants::error_type reason) { throw std::regex_error(reason); }
};

/// Walks over text for a regular expression and, whenever a character is read or positions are compared, looks at what
/// is left to the match. libstdc++ recurses for every character and every repetition it matches, and this is the one
/// place that sees both; where the standard library guards its own stack, this guard is merely never the first to act.
template <typename Char>
class CGuardedIterator {
 public:
  using iterator_category = std::bidirectional_iterator_tag;
  using value_type = Char;
  using difference_type = std::ptrdiff_t;
  using pointer = const Char*;
  using reference = const Char&;

  CGuardedIterator() = default;
  CGuardedIterator(const Char* position, MatchBudget& budget) : m_position(position), m_budget(&budget) {}

  reference operator*() const {
    m_budget->Check();
    return *m_position;
  }
  CGuardedIterator& operator++() {
    ++m_position;
    return *this;
  }
  CGuardedIterator operator++(int) {
    CGuardedIterator before = *this;
    ++m_position;
    return before;
  }
  CGuardedIterator& operator--() {
    --m_position;
    return *this;
  }
  CGuardedIterator operator--(int) {
    CGuardedIterator before = *this;
    --m_position;
    return before;
  }
  friend bool operator==(const CGuardedIterator& a, const CGuardedIterator& b) {
    if (a.m_budget != nullptr) a.m_budget->Check();
    return a.m_position == b.m_position;
  }

  pointer Position() const { return m_position; }

 private:
  const Char* m_position = nullptr;
  MatchBudget* m_budget = nullptr;
};

template <typename Char>
using GuardedMatch = std::match_results<CGuardedIterator<Char>>;

/// `std::regex_match` of the whole text, with the captures in `match`, of which only the positions may be used.
/// \param steps how often it may read a character or compare positions
/// \throws std::regex_error when the match would need more stack (`error_stack`) or more steps (`error_complexity`)
template <typename Char>
bool GuardedRegexMatch(std::basic_string_view<Char> text, GuardedMatch<Char>& match,
                       const std::basic_regex<Char>& expression, std::size_t steps = kMatchStepBudget) {
  const std::uintptr_t here = VIF_FRAME_ADDRESS();
  MatchBudget budget;
  budget.stepsLeft = steps;
  budget.lowestFrame = here > kMatchStackBudget ? here - kMatchStackBudget : 0;
  const CGuardedIterator<Char> first(text.data(), budget);
  const CGuardedIterator<Char> last(text.data() + text.size(), budget);
  return std::regex_match(first, last, match, expression);
}

}  // namespace vif

// Runs std::regex on text of any length without overflowing the stack or running for ever.
#pragma once

#include "Compiler.h"
#include "LivePositions.h"
#include "PatternError.h"
#include "RegexShape.h"
#include "StackSpace.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <optional>
#include <regex>
#include <string_view>

namespace vif {

/// How much stack the recursive engine may use where the stepwise one can take over. Field names need a few kilobytes.
constexpr std::uintptr_t kRecursionBudget = std::uintptr_t{256} * 1024;

/// How often the recursive engine may read a character or compare positions in one match. Unless a pattern is
/// pathological, it does so a few times for each character of a name.
constexpr std::size_t kMatchStepBudget = 1'000'000;

/// The same for the stepwise engine, which takes a few steps for each character, and more than one for each pair of
/// characters only where a pattern looks ahead. This ends the longest match after a second or two.
constexpr std::size_t kStepwiseStepBudget = 100'000'000;

/// How many bytes of stack to allow libstdc++ for one alternative: it takes 80 to 144, or 496 in the largest frames of
/// a sanitizer.
constexpr std::uintptr_t kStackPerAlternative = kHasLargeFrames ? 768 : 256;

/// What a match may still use. An engine with frames on the heap may take as much memory for them as is left of the
/// stack, so that a match that goes too deep fails in the same way as with frames on the stack.
struct MatchBudget {
  std::uintptr_t lowestFrame = 0;
  std::size_t stepsLeft = kMatchStepBudget;
  bool hasFramesOnHeap = kHasFramesOnHeap;
  std::optional<std::size_t> positionsBefore = std::nullopt;  // those that were there at the first step

  /// \throws std::regex_error (`error_stack`) if the match has gone too deep
  void CheckStack() const {
    if (VIF_FRAME_ADDRESS() < lowestFrame) ThrowStackTooSmall();
  }

  /// \throws std::regex_error if the match has gone too deep (`error_stack`) or on for too long (`error_complexity`)
  void Check() {
    CheckStack();
    if (hasFramesOnHeap) CheckFramesOnHeap();
    if (stepsLeft-- == 0) ThrowTooManySteps();
  }

 private:
  void CheckFramesOnHeap() {
    const std::size_t positions = PositionCount::Count();
    if (!positionsBefore) positionsBefore = positions;
    const std::size_t frames = positions - std::min(positions, *positionsBefore);
    if (frames > (VIF_FRAME_ADDRESS() - lowestFrame) / kHeapPerFrame) ThrowStackTooSmall();
  }
};

/// Iterates over text for a regular expression, and checks the budget whenever a character is read, positions are
/// compared or a position is kept. libstdc++ recurses for every character, repetition, group and assertion it matches,
/// and does one of these each time; only alternatives that directly follow each other escape the guard. From version 16
/// on, it recurses for assertions only and keeps the rest on the heap. Where the standard library guards its own stack,
/// its guard simply acts before this one.
template <typename Char>
class CGuardedIterator : private PositionCount {
 public:
  using iterator_category = std::bidirectional_iterator_tag;
  using value_type = Char;
  using difference_type = std::ptrdiff_t;
  using pointer = const Char*;
  using reference = const Char&;

  CGuardedIterator() = default;
  CGuardedIterator(const Char* position, MatchBudget& budget) : m_position(position), m_budget(&budget) {}
  CGuardedIterator(const CGuardedIterator& other) = default;
  CGuardedIterator& operator=(const CGuardedIterator& other) {  // NOLINT(bugprone-unhandled-self-assignment): harmless
    if (other.m_budget != nullptr) other.m_budget->CheckStack();
    m_position = other.m_position;
    m_budget = other.m_budget;
    return *this;
  }
  ~CGuardedIterator() = default;

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

/// The engine that does a match.
enum class Engine { Recursive, Stepwise };

/// `std::regex_match` of the whole text. Of the captures in `match`, only the positions may be used.
/// \throws std::regex_error if the match would need more stack (`error_stack`) or more steps (`error_complexity`) than
///   the budget allows
template <typename Char>
bool GuardedRegexMatch(std::basic_string_view<Char> text, GuardedMatch<Char>& match,
                       const std::basic_regex<Char>& expression, MatchBudget budget,
                       Engine engine = Engine::Recursive) {
  // The stepwise engine's frames are no more than the states of the expression.
  if (engine == Engine::Stepwise) budget.hasFramesOnHeap = false;
  const CGuardedIterator<Char> first(text.data(), budget);
  const CGuardedIterator<Char> last(text.data() + text.size(), budget);
  return engine == Engine::Recursive ? std::regex_match(first, last, match, expression)
                                     : StepwiseRegexMatch(first, last, match, expression);
}

/// Matches texts with one expression: recursively, which is fast, or stepwise where that would take too much stack or
/// too many steps.
class CGuardedMatcher {
 public:
  explicit CGuardedMatcher(const RegexShape& shape) : m_shape(shape) {}

  /// \param expression the one that the shape describes
  /// \param lowestUsableFrame the result of `LowestFrame`, which callers with many matches may determine once
  /// \throws std::regex_error as `GuardedRegexMatch` does, if no engine can answer
  template <typename Char>
  bool Match(std::basic_string_view<Char> text, GuardedMatch<Char>& match, const std::basic_regex<Char>& expression,
             std::uintptr_t lowestUsableFrame = LowestFrame()) {
    const std::uintptr_t lowestFrame = lowestUsableFrame + m_shape.alternatives * kStackPerAlternative;
    if (m_shape.needsRecursion) return GuardedRegexMatch(text, match, expression, {lowestFrame, kMatchStepBudget});
    if (text.size() < m_tooLong) {
      try {
        const std::uintptr_t here = VIF_FRAME_ADDRESS();
        const std::uintptr_t lowest = std::max(lowestFrame, here - std::min(here, kRecursionBudget));
        return GuardedRegexMatch(text, match, expression, {lowest, kMatchStepBudget});
      } catch (const std::regex_error&) {
        m_tooLong = text.size();
      }
    }
    return GuardedRegexMatch(text, match, expression, {lowestFrame, kStepwiseStepBudget}, Engine::Stepwise);
  }

 private:
  RegexShape m_shape;
  std::size_t m_tooLong = std::numeric_limits<std::size_t>::max();  // the shortest text that was too much
};

}  // namespace vif

// Runs std::regex on text of any length without running off the stack.
#pragma once

#include "Compiler.h"

#include <cstddef>
#include <cstdint>
#include <iterator>
#include <regex>
#include <string_view>

namespace vif {

/// How far one match may go down the stack. Field names need a few kilobytes; the smallest stack a host's thread
/// is likely to have is several times as large.
constexpr std::uintptr_t kMatchStackBudget = std::uintptr_t{256} * 1024;

/// Walks over text for a regular expression and, whenever a character is read, looks how deep the matcher has
/// gone. libstdc++ recurses for every character it matches, so this is the one place that sees every step;
/// where the standard library guards its own stack, this guard is merely never the first to act.
template <typename Char>
class CGuardedIterator {
 public:
  using iterator_category = std::bidirectional_iterator_tag;
  using value_type = Char;
  using difference_type = std::ptrdiff_t;
  using pointer = const Char*;
  using reference = const Char&;

  CGuardedIterator() = default;
  CGuardedIterator(const Char* position, std::uintptr_t lowestFrame)
      : m_position(position), m_lowestFrame(lowestFrame) {}

  reference operator*() const {
    if (VIF_FRAME_ADDRESS() < m_lowestFrame) throw std::regex_error(std::regex_constants::error_stack);
    return *m_position;
  }
  pointer operator->() const { return m_position; }
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
  friend bool operator==(const CGuardedIterator& a, const CGuardedIterator& b) { return a.m_position == b.m_position; }

  pointer Position() const { return m_position; }

 private:
  const Char* m_position = nullptr;
  std::uintptr_t m_lowestFrame = 0;
};

template <typename Char>
using GuardedMatch = std::match_results<CGuardedIterator<Char>>;

/// `std::regex_match` of the whole text, with the captures in `match`.
/// \throws std::regex_error (`error_stack`) when the match would need more stack than the budget
template <typename Char>
bool GuardedRegexMatch(std::basic_string_view<Char> text, GuardedMatch<Char>& match,
                       const std::basic_regex<Char>& expression) {
  const std::uintptr_t here = VIF_FRAME_ADDRESS();
  const std::uintptr_t lowest = here > kMatchStackBudget ? here - kMatchStackBudget : 0;
  const CGuardedIterator<Char> first(text.data(), lowest);
  const CGuardedIterator<Char> last(text.data() + text.size(), lowest);
  return std::regex_match(first, last, match, expression);
}

}  // namespace vif

#include "PatternDepth.h"

#include <algorithm>
#include <cstdint>
#include <vector>

namespace vif {

namespace {

constexpr std::size_t kEnough = std::size_t{1} << 30;  // counting stops here, so that nothing overflows

std::size_t Sum(std::size_t a, std::size_t b) { return std::min(kEnough, a + b); }

// In 64 bits, because the product itself would not fit where std::size_t has 32.
std::size_t Product(std::size_t a, std::size_t b) {
  return static_cast<std::size_t>(std::min(std::uint64_t{kEnough}, std::uint64_t{a} * b));
}

/// An open group; the whole pattern is the outermost.
struct OpenGroup {
  std::size_t deepest = 0;         // of the complete alternatives
  std::size_t depth = 0;           // of the alternative being read
  std::size_t joints = 0;          // of all alternatives so far, without the last term
  std::size_t lastTermJoints = 0;  // kept apart, because braces may repeat them

  void AddTerm(const PatternCost& term) {
    depth = Sum(depth, term.depth);
    joints = Sum(joints, lastTermJoints);
    lastTermJoints = term.joints;
  }
  void EndAlternative() {
    AddTerm({0, 2, 0});
    deepest = std::max(deepest, depth);
    depth = 0;
  }
  PatternCost Total() {
    EndAlternative();
    return {Sum(deepest, kGroupDepth), Sum(joints, Sum(lastTermJoints, 1)), 0};
  }
};

/// The position after a bracket expression that begins at `begin`.
std::size_t EndOfBrackets(std::string_view pattern, std::size_t begin) {
  std::size_t i = begin + 1;
  while (i < pattern.size() && pattern[i] != ']') i += pattern[i] == '\\' ? std::size_t{2} : 1;
  return std::min(i + 1, pattern.size());
}

/// The most copies of the preceding term that libstdc++ makes for the text between two braces.
std::size_t Copies(std::string_view text) {
  std::size_t largest = 0;
  std::size_t number = 0;
  for (const char c : text) {
    const bool isDigit = c >= '0' && c <= '9';
    number = isDigit ? Sum(Product(number, 10), static_cast<std::size_t>(c - '0')) : 0;
    largest = std::max(largest, number);
  }
  return largest + 1;
}

class CPatternReader {
 public:
  explicit CPatternReader(std::string_view pattern) : m_pattern(pattern) {}

  PatternCost Read() {
    while (m_position < m_pattern.size()) ReadOne();
    PatternCost total;
    for (OpenGroup& group : m_groups) {
      const PatternCost cost = group.Total();
      total = {Sum(total.depth, cost.depth), Sum(total.joints, cost.joints), m_repetitions};
    }
    return total;
  }

 private:
  void ReadOne() {
    OpenGroup& group = m_groups.back();
    const char c = m_pattern[m_position++];
    switch (c) {
      case '(': m_groups.emplace_back(); break;
      case ')': CloseGroup(); break;
      case '|': group.EndAlternative(); break;
      case '{': ReadBraces(group); break;
      case '*':
      case '+':
      case '?': ++group.lastTermJoints; break;
      case '[':
        group.AddTerm({1, 0, 0});
        m_position = EndOfBrackets(m_pattern, m_position - 1);
        break;
      case '\\':
        group.AddTerm({1, 0, 0});
        // "\c" takes the character after it, whatever it is.
        m_position += m_pattern.substr(m_position, 1) == "c" ? 2U : 1U;
        break;
      default: group.AddTerm({1, 0, 0}); break;
    }
  }

  void CloseGroup() {
    if (m_groups.size() == 1) return;
    const PatternCost cost = m_groups.back().Total();
    m_groups.pop_back();
    m_groups.back().AddTerm(cost);
  }

  void ReadBraces(OpenGroup& group) {
    const std::size_t end = std::min(m_pattern.find('}', m_position), m_pattern.size());
    const std::size_t copies = Copies(m_pattern.substr(m_position, end - m_position));
    m_repetitions = std::max(m_repetitions, copies - 1);
    group.lastTermJoints = Sum(2, Product(group.lastTermJoints, copies));
    m_position = end + 1;
  }

  std::string_view m_pattern;
  std::size_t m_position = 0;
  std::size_t m_repetitions = 0;
  std::vector<OpenGroup> m_groups{1};
};

}  // namespace

PatternCost CostOf(std::string_view pattern) {
  PatternCost cost = CPatternReader(pattern).Read();
  if (!kHasStepwiseEngine) cost.depth = std::max(cost.depth, kGroupDepth + pattern.size());
  return cost;
}

}  // namespace vif

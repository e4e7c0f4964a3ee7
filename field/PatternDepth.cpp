#include "PatternDepth.h"

#include <algorithm>
#include <vector>

namespace vif {

namespace {

constexpr std::size_t kGroupDepth = 8;
constexpr std::size_t kAlternativeDepth = 2;
constexpr std::size_t kQuantifierDepth = 2;
constexpr std::size_t kTooDeep = 1U << 20;  // where counting stops, so that nothing overflows

/// A group that is open, the whole pattern being the outermost.
struct OpenGroup {
  std::size_t alternatives = kAlternativeDepth;  // of all of them so far
  std::size_t deepest = 0;                       // of the alternatives that are complete
  std::size_t current = 0;                       // of the one being read, without its last term
  std::size_t lastTerm = 0;

  void Add(std::size_t term) {
    current = std::min(kTooDeep, current + lastTerm);
    lastTerm = term;
  }
  void EndAlternative() {
    Add(0);
    deepest = std::max(deepest, current);
    current = 0;
  }
  std::size_t Depth() {
    EndAlternative();
    return std::min(kTooDeep, deepest + alternatives);
  }
};

/// The position behind a bracket expression that begins at `begin`.
std::size_t BehindBrackets(std::string_view pattern, std::size_t begin) {
  std::size_t i = begin + 1;
  while (i < pattern.size() && pattern[i] != ']') i += pattern[i] == '\\' ? std::size_t{2} : 1;
  return std::min(i + 1, pattern.size());
}

/// The largest number in the text between two braces, at least 1.
std::size_t LargestNumber(std::string_view text) {
  std::size_t largest = 1;
  std::size_t number = 0;
  for (const char c : text) {
    const bool isDigit = c >= '0' && c <= '9';
    number = isDigit ? std::min(kTooDeep, number * 10 + static_cast<std::size_t>(c - '0')) : 0;
    largest = std::max(largest, number);
  }
  return largest;
}

}  // namespace

std::size_t PatternDepth(std::string_view pattern) {
  std::vector<OpenGroup> groups(1);
  for (std::size_t i = 0; i < pattern.size();) {
    OpenGroup& group = groups.back();
    switch (pattern[i]) {
      case '(':
        groups.emplace_back();
        ++i;
        break;
      case ')':
        ++i;
        if (groups.size() == 1) break;
        {
          const std::size_t depth = kGroupDepth + group.Depth();
          groups.pop_back();
          groups.back().Add(depth);
        }
        break;
      case '|':
        group.EndAlternative();
        group.alternatives = std::min(kTooDeep, group.alternatives + kAlternativeDepth);
        ++i;
        break;
      case '[':
        group.Add(1);
        i = BehindBrackets(pattern, i);
        break;
      case '{': {
        const std::size_t end = std::min(pattern.find('}', i), pattern.size());
        group.lastTerm = std::min(kTooDeep, group.lastTerm * LargestNumber(pattern.substr(i, end - i)));
        i = end + 1;
        break;
      }
      case '*':
      case '+':
      case '?':
        group.lastTerm += kQuantifierDepth;
        ++i;
        break;
      case '\\':
        group.Add(1);
        i += 2;
        break;
      default:
        group.Add(1);
        ++i;
        break;
    }
  }
  std::size_t depth = 0;
  for (OpenGroup& group : groups) depth = std::min(kTooDeep, depth + kGroupDepth + group.Depth());
  return depth;
}

}  // namespace vif

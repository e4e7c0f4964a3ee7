// Regular expressions made from a grammar.
#pragma once

#include "support/Random.h"

#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace testsupport {

/// Makes expressions from a grammar: sequences of literals, classes, assertions and groups, some of them quantified.
class CPatternGenerator {
 public:
  explicit CPatternGenerator(bool withReferences) : m_withReferences(withReferences) {}

  std::size_t Below(std::size_t bound) { return RandomBelow(m_random, bound); }

  std::string Pattern() {
    m_groups = 0;
    m_closedGroups.clear();
    return Alternatives(2);
  }

  std::string Alternatives(int depth) {
    std::string text = Sequence(depth);
    for (std::size_t more = Below(4); more > 2; --more) text.append("|").append(Sequence(depth));
    return text;
  }

  std::string Name(std::size_t longest, std::string_view characters) {
    std::string name;
    for (std::size_t length = Below(longest + 1); length > 0; --length) name += characters[Below(characters.size())];
    return name;
  }

 private:
  template <std::size_t N>
  const char* OneOf(const char* const (&texts)[N]) {
    return texts[Below(N)];
  }

  std::string Sequence(int depth) {
    std::string text;
    for (std::size_t terms = Below(4); terms > 0; --terms) text += Term(depth);
    return text;
  }

  std::string Term(int depth) {
    static constexpr const char* assertions[] = {"^", "$", "\\b", "\\B"};
    static constexpr const char* quantifiers[] = {"*", "+", "?", "*?", "+?", "??", "{2}", "{1,2}", "{0,1}", "{1,}"};
    if (Below(10) == 0) return OneOf(assertions);
    if (depth > 0 && Below(10) == 0) return (Below(2) == 0 ? "(?=" : "(?!") + Alternatives(depth - 1) + ")";
    std::string text = Atom(depth);
    if (Below(3) == 0) text += OneOf(quantifiers);
    return text;
  }

  std::string Atom(int depth) {
    static constexpr const char* atoms[] = {"a",    "b",      "A",       "B",           "1",   "_",    ".",
                                            ".",    "\\d",    "\\D",     "\\w",         "\\W", "\\s",  "[ab]",
                                            "[^a]", "[A-C1]", "[^\\d_]", "[[:alpha:]]", "\\.", "\\x61"};
    if (depth > 0 && Below(3) == 0) {
      if (Below(2) == 0) return "(?:" + Alternatives(depth - 1) + ")";
      const std::size_t number = ++m_groups;
      const std::string content = Alternatives(depth - 1);
      m_closedGroups.push_back(number);
      return std::string("(") + content + ")";
    }
    if (m_withReferences && !m_closedGroups.empty() && Below(4) == 0) {
      return std::string("(?:\\") + std::to_string(m_closedGroups[Below(m_closedGroups.size())]) + ")";
    }
    return OneOf(atoms);
  }

  std::mt19937_64 m_random = testsupport::SeededGenerator();
  bool m_withReferences;
  std::size_t m_groups = 0;                 // that have been opened
  std::vector<std::size_t> m_closedGroups;  // their numbers; only these may be referred to
};

}  // namespace testsupport

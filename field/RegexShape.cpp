#include "RegexShape.h"

#include <algorithm>

namespace vif {

#if defined(__GLIBCXX__)

namespace {

using NarrowAutomaton = std::__detail::_NFA<std::regex_traits<char>>;
using WideAutomaton = std::__detail::_NFA<std::regex_traits<wchar_t>>;

const NarrowAutomaton* AutomatonOf(const std::regex& expression);
const WideAutomaton* AutomatonOf(const std::wregex& expression);

/// Reads the automaton that a `std::basic_regex` shares with its copies. An explicit instantiation may name a private
/// member, and there is no other way to ask a compiled expression for anything.
template <typename Expression, typename Automaton, auto Member>
struct AutomatonReader {
  friend const Automaton* AutomatonOf(const Expression& expression) { return (expression.*Member).get(); }
};
template struct AutomatonReader<std::regex, NarrowAutomaton, &std::regex::_M_automaton>;
template struct AutomatonReader<std::wregex, WideAutomaton, &std::wregex::_M_automaton>;

template <typename Automaton>
RegexShape ShapeOfAutomaton(const Automaton* automaton) {
  if (automaton == nullptr) return {0, false};
  const auto alternatives = std::count_if(automaton->begin(), automaton->end(), [](const auto& state) {
    return state._M_opcode() == std::__detail::_S_opcode_alternative;
  });
  return {static_cast<std::size_t>(alternatives), automaton->_M_has_backref};
}

}  // namespace

RegexShape ShapeOf(const std::regex& expression) { return ShapeOfAutomaton(AutomatonOf(expression)); }
RegexShape ShapeOf(const std::wregex& expression) { return ShapeOfAutomaton(AutomatonOf(expression)); }
const void* IdentityOf(const std::wregex& expression) { return AutomatonOf(expression); }

#else

RegexShape ShapeOf(const std::regex&) { return {}; }
RegexShape ShapeOf(const std::wregex&) { return {}; }
const void* IdentityOf(const std::wregex&) { return nullptr; }

#endif

}  // namespace vif

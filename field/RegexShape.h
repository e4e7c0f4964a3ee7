// What a compiled regular expression says about itself.
#pragma once

#include <cstddef>
#include <regex>

namespace vif {

/// What must be known of an expression to match it safely.
struct RegexShape {
  /// The number of choices between two alternatives in the expression.
  std::size_t alternatives = 0;

  /// Whether only the recursive engine can match it, because it has a back-reference or the standard library has no
  /// other engine.
  bool needsRecursion = true;
};

RegexShape ShapeOf(const std::regex& expression);
RegexShape ShapeOf(const std::wregex& expression);

/// Identifies an expression: all its copies share this, and no other expression has it while one of them lives. Null
/// for the empty expression, and where the standard library does not reveal it.
const void* IdentityOf(const std::wregex& expression);

}  // namespace vif

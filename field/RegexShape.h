// What a compiled regular expression says about itself.
#pragma once

#include <cstddef>
#include <regex>

namespace vif {

/// What has to be known of an expression to match it safely.
struct RegexShape {
  /// How many times the expression offers a choice between two alternatives.
  std::size_t alternatives = 0;

  /// Whether the recursive engine is the only one that can match it, because it refers back to a group or because the
  /// standard library has no other.
  bool needsRecursion = true;
};

RegexShape ShapeOf(const std::regex& expression);
RegexShape ShapeOf(const std::wregex& expression);

/// What all copies of one expression share, and no other expression does while one of them lives. Null for the empty
/// expression, and wherever the standard library does not tell.
const void* IdentityOf(const std::wregex& expression);

}  // namespace vif

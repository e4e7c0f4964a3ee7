// What it costs to compile a regular expression.
#pragma once

#include "Compiler.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vif {

/// What it costs to compile a pattern, never underestimated. A pattern that is not a regular expression has a cost too;
/// it is not for this measure to find that out.
struct PatternCost {
  /// How deep libstdc++ recurses: once for every term of an alternative and a few times for every group. A term counts
  /// as 1, a group as `kGroupDepth` more than its content, and of alternatives only the deepest, because they are
  /// compiled one after the other. Other libraries also recurse for everything in the pattern when they destroy what
  /// they have compiled; there every character counts.
  std::size_t depth = 0;

  /// How many states libstdc++ creates only to join others. In the end it follows them one by one, in time that grows
  /// with the square of their number. Braces repeat them.
  std::size_t joints = 0;

  /// The largest number in braces.
  std::size_t repetitions = 0;
};

PatternCost CostOf(std::string_view pattern);

constexpr std::size_t kGroupDepth = 8;

/// How many bytes of stack to allow for each 1 of the depth. A term takes 64 to 144 bytes and a group 270 to 850; in
/// the largest frames of a sanitizer, 480 and 1,950.
constexpr std::uintptr_t kStackPerDepth = kHasLargeFrames ? 768 : 256;

/// This many joints take about a second. An alternation of 1,000 names has 2,000.
constexpr std::size_t kMostJoints = 20'000;

/// libstdc++ compiles no pattern that repeats more often, because it creates at most 100,000 states; a number of 19
/// digits would overflow there.
constexpr std::size_t kMostRepetitions = 1'000'000;

}  // namespace vif

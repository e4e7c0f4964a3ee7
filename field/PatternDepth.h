// What compiling a regular expression takes.
#pragma once

#include "Compiler.h"

#include <cstddef>
#include <cstdint>
#include <string_view>

namespace vif {

/// What compiling a pattern takes, never less than it really is. A pattern that is not a regular expression has a cost
/// too; finding that out is not the business of this measure.
struct PatternCost {
  /// How deep libstdc++ recurses: once for every term of an alternative and a few times for every group. A term counts
  /// as 1, a group as `kGroupDepth` more than its content, and of alternatives only the deepest, because they are
  /// compiled one after the other. Other libraries go down once more for everything in the pattern when they destroy
  /// what they have compiled; there every character counts.
  std::size_t depth = 0;

  /// How many states libstdc++ makes only to join others, and follows one by one in the end, in a time that grows with
  /// the square of their number. Braces repeat them.
  std::size_t joints = 0;

  /// The largest number in braces.
  std::size_t repetitions = 0;
};

PatternCost CostOf(std::string_view pattern);

constexpr std::size_t kGroupDepth = 8;

/// What compiling may take of the stack for each 1 of the depth. A term takes 64 to 144 bytes and a group 270 to 850,
/// and in the largest frames that a sanitizer makes 480 and 1,950.
constexpr std::uintptr_t kStackPerDepth = kHasLargeFrames ? 768 : 256;

/// As many joints as take about a second. An alternation of 1,000 names has 2,000.
constexpr std::size_t kMostJoints = 20'000;

/// No pattern that libstdc++ compiles repeats more often: it makes at most 100,000 states. A number of 19 digits
/// overflows there.
constexpr std::size_t kMostRepetitions = 1'000'000;

}  // namespace vif

// Counts positions in texts that are being matched.
#pragma once

#include "Compiler.h"

#include <cstddef>
#include <type_traits>

namespace vif {

/// A base class that counts its objects on this thread. They are destroyed on the thread that created them.
class CLivePosition {
 public:
  CLivePosition() { ++t_count; }
  CLivePosition(const CLivePosition&) { ++t_count; }
  CLivePosition& operator=(const CLivePosition&) = default;
  ~CLivePosition() { --t_count; }

  static std::size_t Count() { return t_count; }

 private:
  static inline thread_local std::size_t t_count = 0;
};

/// In its place where nobody needs the count.
struct UncountedPosition {
  static std::size_t Count() { return 0; }
};

/// The base class of positions. Each frame that the recursive engine keeps on the heap has one, so that their number
/// tells how many frames there are.
using PositionCount = std::conditional_t<kHasFramesOnHeap, CLivePosition, UncountedPosition>;

/// How many bytes to allow for a frame on the heap. It has five words, and the vector that holds it may have room for
/// twice as many.
constexpr std::size_t kHeapPerFrame = 10 * sizeof(void*);

}  // namespace vif

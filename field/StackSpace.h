// How much of its stack the calling thread may still use.
#pragma once

#include "Compiler.h"

#include <cstddef>
#include <cstdint>

namespace vif {

/// What is never used of a stack: it has to be enough for a few ordinary calls and for throwing an exception.
constexpr std::uintptr_t kStackReserve = std::uintptr_t{64} * 1024;

/// What is taken to be left where it cannot be determined: on a stack that is not the thread's own, such as a
/// coroutine's, and on systems for which nobody has written how.
constexpr std::uintptr_t kAssumedStack = std::uintptr_t{256} * 1024;

/// The most that is used of any stack. A thread keeps the memory of its stack once it has been touched.
constexpr std::uintptr_t kMostStack = std::uintptr_t{64} * 1024 * 1024;

/// The lowest address that a frame of the calling thread may have, the reserve already taken off. It may lie above the
/// calling function's own frame; then nothing is left. The bounds of a thread's stack are determined at its first
/// call. Throws nothing.
std::uintptr_t LowestFrame() noexcept;

/// How many bytes of stack there are between the calling function's frame and `LowestFrame`; 0 when there are none.
std::uintptr_t StackLeft() noexcept;

}  // namespace vif

// How much of its stack the calling thread may still use.
#pragma once

#include "Compiler.h"

#include <cstddef>
#include <cstdint>

namespace vif {

/// The part of a stack that is never used: enough for a few ordinary calls and for throwing an exception.
constexpr std::uintptr_t kStackReserve = std::uintptr_t{64} * 1024;

/// How much is assumed to be left where that cannot be determined: on a stack that is not the thread's own, such as a
/// coroutine's, and on systems that `ThreadStack` does not support.
constexpr std::uintptr_t kAssumedStack = std::uintptr_t{256} * 1024;

/// The most that is used of any stack. Once a thread has touched memory of its stack, it keeps that.
constexpr std::uintptr_t kMostStack = std::uintptr_t{64} * 1024 * 1024;

/// The lowest address that a frame of the calling thread may have, not counting the reserve. It may be above the
/// calling function's own frame; then nothing is left. The bounds of a thread's stack are determined at its first call.
/// Throws nothing.
std::uintptr_t LowestFrame() noexcept;

/// The bytes of stack between the calling function's frame and `LowestFrame`; 0 if there are none.
std::uintptr_t StackLeft() noexcept;

}  // namespace vif

#include "StackSpace.h"

#include <algorithm>

#if defined(_WIN32)
#include <windows.h>
#elif defined(__GLIBC__)
#include <pthread.h>
#endif

namespace vif {

namespace {

/// Where a thread's stack begins and ends.
struct StackBounds {
  std::uintptr_t lowest = 0;
  std::uintptr_t end = 0;
};

/// Bounds that contain no frame, for a stack whose own cannot be determined.
[[maybe_unused]] constexpr StackBounds kUnknown = {0, 1};

#if defined(_WIN32)

// Not cached: a fiber has bounds of its own.
StackBounds ThreadStack() noexcept {
  ULONG_PTR lowest = 0;
  ULONG_PTR end = 0;
  GetCurrentThreadStackLimits(&lowest, &end);
  return {lowest, end};
}

#elif defined(__GLIBC__)

StackBounds DetermineThreadStack() noexcept {
  pthread_attr_t attributes;
  if (pthread_getattr_np(pthread_self(), &attributes) != 0) return kUnknown;
  void* lowest = nullptr;
  std::size_t size = 0;
  const bool isKnown = pthread_attr_getstack(&attributes, &lowest, &size) == 0;
  pthread_attr_destroy(&attributes);
  if (!isKnown) return kUnknown;
  const auto address = reinterpret_cast<std::uintptr_t>(lowest);
  return {address, address + size};
}

// Cached, because for the main thread the C library reads /proc/self/maps.
StackBounds ThreadStack() noexcept {
  thread_local StackBounds bounds;
  if (bounds.end == 0) bounds = DetermineThreadStack();
  return bounds;
}

#else

StackBounds ThreadStack() noexcept { return kUnknown; }

#endif

std::uintptr_t Below(std::uintptr_t address, std::uintptr_t bytes) { return address - std::min(address, bytes); }

/// The lowest address that a frame may have, seen from the frame at an address.
std::uintptr_t LowestFrameFrom(std::uintptr_t here) noexcept {
  const StackBounds stack = ThreadStack();
  const bool isOnIt = stack.lowest <= here && here < stack.end;
  if (!isOnIt) return Below(here, kAssumedStack);
  return std::max(stack.lowest + kStackReserve, Below(here, kMostStack));
}

}  // namespace

std::uintptr_t LowestFrame() noexcept { return LowestFrameFrom(VIF_FRAME_ADDRESS()); }

std::uintptr_t StackLeft() noexcept {
  const std::uintptr_t here = VIF_FRAME_ADDRESS();
  return here - std::min(here, LowestFrameFrom(here));
}

}  // namespace vif

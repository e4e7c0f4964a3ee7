#include "StackSpace.h"

#include "Compiler.h"
#include "RunOnStack.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>

#if defined(__linux__)
#include <sys/resource.h>
#include <ucontext.h>

#include <vector>
#endif

namespace {

using testsupport::RunOnStack;
using vif::kMostStack;
using vif::kStackReserve;
using vif::StackLeft;

constexpr std::uintptr_t kKilobyte = 1024;
constexpr std::uintptr_t kMegabyte = 1024 * kKilobyte;

std::uintptr_t StackLeftOf(std::size_t bytes) {
  std::uintptr_t left = 0;
  RunOnStack(bytes, [&] { left = StackLeft(); });
  return left;
}

// A system may give a thread more than requested: the C library reuses the stacks of earlier threads.
TEST(StackLeft, IsNearlyAllOfANewThread) {
  // ThreadSanitizer keeps what it knows of a thread on the thread's stack.
  constexpr std::uintptr_t most = testsupport::kIsThreadSanitized ? kMegabyte : 64 * kKilobyte;
  for (const std::uintptr_t size : {kMegabyte, 2 * kMegabyte, 8 * kMegabyte, 32 * kMegabyte}) {
    const std::uintptr_t left = StackLeftOf(size);
    EXPECT_GE(left + most, size - kStackReserve) << size;
  }
}

TEST(StackLeft, IsBoundedForAVeryLargeStack) {
  EXPECT_LE(StackLeftOf(256 * kMegabyte), kMostStack);
  EXPECT_GT(StackLeftOf(256 * kMegabyte), kMostStack - kMegabyte);
}

TEST(StackLeft, OfTheMainThreadIsThatOfTheProgram) {
#if defined(__linux__)
  rlimit limit{};
  ASSERT_EQ(getrlimit(RLIMIT_STACK, &limit), 0);
  EXPECT_LE(StackLeft(), limit.rlim_cur);
  if (limit.rlim_cur >= 8 * kMegabyte) {
    EXPECT_GE(StackLeft(), 7 * kMegabyte);
  }
#else
  EXPECT_GT(StackLeft(), 0U);
#endif
  EXPECT_LE(StackLeft(), kMostStack);
}

/// What is left after using a good part of the stack.
std::uintptr_t StackLeftBelow(std::size_t bytes) {
  volatile char used[4096] = {};
  used[0] = 1;
  const std::uintptr_t left = bytes < sizeof used ? StackLeft() : StackLeftBelow(bytes - sizeof used);
  return used[0] == 1 ? left : 0;
}

TEST(StackLeft, ShrinksWithEveryCall) {
  RunOnStack(kMegabyte, [] {
    const std::uintptr_t before = StackLeft();
    const std::uintptr_t below = StackLeftBelow(400 * kKilobyte);
    EXPECT_LE(below, before - 400 * kKilobyte);
    EXPECT_EQ(StackLeft(), before);
  });
}

/// Goes down the stack until nothing is left, and returns how far that was.
std::uintptr_t DepthWhereNothingIsLeft(std::uintptr_t start) {
  volatile char used[256] = {};
  const std::uintptr_t here = VIF_FRAME_ADDRESS();
  const std::uintptr_t depth = StackLeft() == 0 ? start - here : DepthWhereNothingIsLeft(start);
  return used[0] == 0 ? depth : 0;
}

TEST(StackLeft, IsZeroInTheReserve) {
  RunOnStack(kMegabyte, [] {
    const std::uintptr_t left = StackLeft();
    const std::uintptr_t depth = DepthWhereNothingIsLeft(VIF_FRAME_ADDRESS());
    EXPECT_GE(depth + 8 * kKilobyte, left);
    EXPECT_LE(depth, left + 8 * kKilobyte);
  });
}

#if defined(__linux__)

std::uintptr_t leftOnOwnStack = 0;

TEST(StackLeft, IsAssumedOnAStackOtherThanTheThreads) {
  std::vector<char> stack(kMegabyte);
  ucontext_t caller{};
  ucontext_t coroutine{};
  ASSERT_EQ(getcontext(&coroutine), 0);
  coroutine.uc_stack.ss_sp = stack.data();
  coroutine.uc_stack.ss_size = stack.size();
  coroutine.uc_link = &caller;
  makecontext(
      &coroutine, [] { leftOnOwnStack = StackLeft(); }, 0);
  ASSERT_EQ(swapcontext(&caller, &coroutine), 0);
  EXPECT_LE(leftOnOwnStack, vif::kAssumedStack);
  EXPECT_GT(leftOnOwnStack, vif::kAssumedStack - 4 * kKilobyte);
}

#endif

}  // namespace

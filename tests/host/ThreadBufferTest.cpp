// The per-thread buffers.
#include "TestUtilities/TULog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <string>
#include <thread>
#include <vector>

namespace {

/// Formats one text in a new thread, which then ends, and fills memory with copies of it that it frees at once.
bool FormatInThread(std::size_t number) {
  bool isRight = true;
  std::thread([&] {
    const std::string text(20 + number % 100, static_cast<char>('a' + number % 26));
    const std::vector<std::string> copies(10, CTULog::GetSimpleBuffer().Printf("%s", text));
    isRight = std::all_of(copies.begin(), copies.end(), [&](const std::string& copy) { return copy == text; });
  }).join();
  return isRight;
}

// The memory of a buffer that is freed with its thread goes straight to another thread.
TEST(ThreadBuffer, IsFreedWithItsThreadAndLeavesOthersAlone) {
  constexpr std::size_t starters = 8;
  constexpr std::size_t rounds = 200;
  std::vector<std::size_t> right(starters);
  std::vector<std::thread> threads;
  for (std::size_t i = 0; i < starters; ++i) {
    threads.emplace_back([&right, i] {
      for (std::size_t round = 0; round < rounds; ++round) right[i] += FormatInThread(i * rounds + round) ? 1U : 0U;
    });
  }
  for (std::thread& thread : threads) thread.join();
  EXPECT_EQ(right, std::vector<std::size_t>(starters, rounds));
}

TEST(ThreadBuffer, IsSeparateForEachThread) {
  const CSimpleBuffer* mine = &CTULog::GetSimpleBuffer();
  const CSimpleBuffer* other = mine;
  std::thread([&] { other = &CTULog::GetSimpleBuffer(); }).join();
  EXPECT_NE(mine, other);
  EXPECT_EQ(mine, &CTULog::GetSimpleBuffer());
}

}  // namespace

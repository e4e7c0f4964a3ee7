/// @file Random.h
/// @brief The seeded random source that the tests share.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <random>
#include <string>

namespace testsupport {
/// The seed of every generated test: VIF_TEST_SEED of the environment (decimal, or hexadecimal after 0x), or a constant
/// if that is missing or not a number, so that a run without it always repeats the previous one.
inline std::uint64_t Seed() {
  constexpr std::uint64_t defaultSeed = 20240521;
  const char* text = std::getenv("VIF_TEST_SEED");
  if (text == nullptr || *text == '\0') {
    return defaultSeed;
  }
  char* end = nullptr;
  const unsigned long long value = std::strtoull(text, &end, 0);
  return *end == '\0' ? std::uint64_t{value} : defaultSeed;
}

/// A new generator at the start of its sequence.
inline std::mt19937_64 SeededGenerator() { return std::mt19937_64{Seed()}; }

/// Says how to repeat the run; meant for SCOPED_TRACE.
inline std::string SeedMessage() { return "repeat with VIF_TEST_SEED=" + std::to_string(Seed()); }

/// A number from 0 to @p bound - 1, the same with every standard library; @p bound must not be 0.
inline std::size_t RandomBelow(std::mt19937_64& generator, std::size_t bound) {
  return static_cast<std::size_t>(generator() % bound);
}
}  // namespace testsupport

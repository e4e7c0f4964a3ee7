#include "support/ForEveryFailingAllocation.h"

#include "support/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <exception>
#include <new>
#include <random>
#include <string>
#include <thread>

namespace testsupport {

namespace {

/// More than any operation allocates.
constexpr std::size_t kNever = ~std::size_t{0};

std::string AttemptText(std::size_t k, Failing howMany) {
  if (k == kNever) return "no allocation fails";
  std::string text = "allocation ";
  text.append(std::to_string(k)).append(howMany == Failing::Once ? " fails" : " and all after it fail");
  return text;
}

/// Makes an attempt on a thread of its own. Anything that goes wrong fails the test.
bool MakeAttempt(const Attempt& attempt, std::size_t k, Failing howMany) {
  bool hasFailed = false;
  const auto make = [&] {
    SCOPED_TRACE(AttemptText(k, howMany));
    try {
      hasFailed = attempt(k, howMany);
    } catch (const std::exception& error) {
      ADD_FAILURE() << "outside the operation: " << error.what();
    } catch (...) {
      ADD_FAILURE() << "outside the operation: not a std::exception";
    }
  };
#ifdef _WIN32
  make();  // with MinGW-w64, running out of memory on one thread after many others ends the process
#else
  std::thread(make).join();
#endif
  return hasFailed;
}

/// The same, and must not leak. On Windows a DLL allocates some of the objects released here, and those allocations are
/// not seen.
bool MakeBalancedAttempt(const Attempt& attempt, std::size_t k, Failing howMany) {
  [[maybe_unused]] const std::size_t before = HeldMemory();
  const bool hasFailed = MakeAttempt(attempt, k, howMany);
#ifndef _WIN32
  // Keep a failure that has been found.
  if (!testing::Test::HasFailure()) {
    EXPECT_EQ(HeldMemory(), before) << AttemptText(k, howMany) << " and leaks";
  }
#endif
  return hasFailed;
}

std::size_t RunWithEveryFailure(const Attempt& attempt, Failing howMany, std::size_t everyUpTo) {
  std::mt19937_64 generator = SeededGenerator();
  std::size_t points = 0;
  for (std::size_t k = 1; MakeBalancedAttempt(attempt, k, howMany); ++points) {
    if (testing::Test::HasFailure()) return points;  // one is enough; thousands would be no easier to read
    k += k < everyUpTo ? 1 : 1 + RandomBelow(generator, 8 * k / everyUpTo);
  }
  return points;
}

/// Records how many allocations have failed in the running test, which may try several operations.
void Record(std::size_t points) {
  static const testing::TestInfo* test = nullptr;
  static std::size_t sum = 0;
  const testing::TestInfo* running = testing::UnitTest::GetInstance()->current_test_info();
  sum = running == test ? sum + points : points;
  test = running;
  testing::Test::RecordProperty("failurePoints", std::to_string(sum));
}

}  // namespace

bool IsDone(const std::function<void()>& action) {
  try {
    action();
    return true;
  } catch (const std::bad_alloc&) {
    return false;
  } catch (const std::exception& error) {
    ADD_FAILURE() << error.what() << " instead of std::bad_alloc";
  } catch (...) {
    ADD_FAILURE() << "something other than a std::exception instead of std::bad_alloc";
  }
  return false;
}

void RunWithEveryFailure(const Attempt& attempt, std::size_t everyUpTo) {
  SCOPED_TRACE(SeedMessage());
  MakeAttempt(attempt, kNever, Failing::Once);  // creates what lives as long as the process
  if (testing::Test::HasFailure()) return;
  std::size_t points = 0;
  for (const Failing howMany : {Failing::Once, Failing::FromThenOn}) {
    points += RunWithEveryFailure(attempt, howMany, everyUpTo);
  }
  Record(points);
}

}  // namespace testsupport

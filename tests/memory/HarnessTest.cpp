// Checks that the other tests here can detect what they look for.
#include "support/FailingMemory.h"
#include "support/ForEveryFailingAllocation.h"

#include <gmock/gmock.h>
#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>

#include <memory>
#include <new>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace {

using testsupport::ForEveryFailingAllocation;

TEST(ForEveryFailingAllocation, FailsEachAllocationAloneAndThenWithAllAfterIt) {
  std::vector<int> made;
  made.reserve(10);  // so that only the operation allocates
  ForEveryFailingAllocation([] { return std::vector<std::unique_ptr<int>>(3); },
                            [](auto& pointers) {
                              for (auto& pointer : pointers) pointer = std::make_unique<int>(1);
                            },
                            [&](const auto& pointers, bool isDone) {
                              int count = 0;
                              for (const auto& pointer : pointers) count += pointer != nullptr ? 1 : 0;
                              EXPECT_EQ(isDone, count == 3);
                              made.push_back(count);
                            });
  EXPECT_EQ(made, (std::vector<int>{3, 0, 1, 2, 3, 0, 1, 2, 3}));
}

TEST(ForEveryFailingAllocation, PassesTheResultOrNothing) {
  std::vector<int> results;
  results.reserve(10);  // so that only the operation allocates
  ForEveryFailingAllocation([] { return std::make_unique<int>(7); },
                            [&](const auto& result) { results.push_back(result ? **result : 0); });
  EXPECT_EQ(results, (std::vector<int>{7, 0, 7, 0, 7}));
}

/// The message of the first failure found in an operation.
template <typename Operation>
std::string FirstFailure(const Operation& operation) {
  testing::TestPartResultArray failures;
  {
    testing::ScopedFakeTestPartResultReporter reporter(testing::ScopedFakeTestPartResultReporter::INTERCEPT_ALL_THREADS,
                                                       &failures);
    ForEveryFailingAllocation([] { return 0; }, [&](int) { operation(); }, [](int, bool) {});
  }
  return failures.size() != 0 ? failures.GetTestPartResult(0).message() : "no failure";
}

/// Uses calls, because a compiler may elide `new` and `delete`.
void Allocate() { ::operator delete(::operator new(1)); }

TEST(ForEveryFailingAllocation, DetectsALeak) {
  std::unique_ptr<int> leaked;
  const std::string failure = FirstFailure([&] {
    auto first = std::make_unique<int>(1);
    try {
      Allocate();
    } catch (const std::bad_alloc&) {
      leaked = std::move(first);
      throw;
    }
  });
#ifdef _WIN32
  EXPECT_EQ(failure, "no failure");
#else
  EXPECT_THAT(failure, testing::HasSubstr("allocation 2 fails and leaks"));
#endif
}

TEST(ForEveryFailingAllocation, DetectsAnotherException) {
  const std::string failure = FirstFailure([] {
    try {
      Allocate();
    } catch (const std::bad_alloc&) {
      throw std::runtime_error("a wrong exception");
    }
  });
  EXPECT_THAT(failure, testing::HasSubstr("a wrong exception instead of std::bad_alloc"));
}

TEST(ForEveryFailingAllocation, DetectsAnExceptionThatNoFailureHasCaused) {
  EXPECT_THAT(FirstFailure([] { throw std::bad_alloc(); }), testing::HasSubstr("outside the operation"));
}

}  // namespace

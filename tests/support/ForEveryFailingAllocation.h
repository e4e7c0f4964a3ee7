// Makes every allocation of an operation fail, one after another.
#pragma once

#include "support/FailingMemory.h"

#include <cstddef>
#include <functional>
#include <new>
#include <optional>
#include <utility>

namespace testsupport {

/// One run of an operation.
/// \return whether the allocation that had to fail was requested
using Attempt = std::function<bool(std::size_t k, Failing howMany)>;

/// Up to this number, every allocation is made to fail; beyond it only some are, at seeded random distances that are on
/// average 4 k / kEveryUpTo at the k-th.
constexpr std::size_t kEveryUpTo = 2000;

/// Makes attempts in which the first, the second, ... allocation fails until that one is no longer requested: once with
/// that allocation alone failing, once with all after it failing too. Except on Windows, each attempt runs on a thread
/// of its own, where nothing with the lifetime of the thread exists yet, and must not leak. The number of failures is
/// recorded as the test's property "failurePoints".
void RunWithEveryFailure(const Attempt& attempt, std::size_t everyUpTo);

/// Whether the action completes. If it throws anything but `std::bad_alloc`, the test fails.
bool IsDone(const std::function<void()>& action);

/// Tries an operation on an object with each of its allocations failing in turn.
/// \param begin creates the object for each try
/// \param operation runs out of memory: it throws `std::bad_alloc`, or completes although an allocation failed
/// \param check gets the object and whether the operation has completed, and expects everything to be in order
template <typename Begin, typename Operation, typename Check>
void ForEveryFailingAllocation(const Begin& begin, const Operation& operation, const Check& check,
                               std::size_t everyUpTo = kEveryUpTo) {
  const Attempt attempt = [&](std::size_t k, Failing howMany) {
    auto object = begin();
    bool isDone = false;
    bool hasFailed = false;
    {
      const std::function<void()> action = [&] { operation(object); };
      const CFailingMemory memory(Memory::Any, k, howMany);
      isDone = IsDone(action);
      hasFailed = memory.HasFailed();
    }
    if (!isDone && !hasFailed) throw std::bad_alloc();  // not for the intended reason
    check(object, isDone);
    return hasFailed;
  };
  RunWithEveryFailure(attempt, everyUpTo);
}

/// The same for an operation that needs no object.
/// \param check gets the operation's result, or nothing when memory ran out
template <typename Operation, typename Check>
void ForEveryFailingAllocation(const Operation& operation, const Check& check) {
  using Result = std::optional<decltype(operation())>;
  ForEveryFailingAllocation([] { return Result(); }, [&](Result& result) { result.emplace(operation()); },
                            [&](Result& result, bool) { check(std::move(result)); });
}

}  // namespace testsupport

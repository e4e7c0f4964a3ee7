// Has memory run out at every allocation of an operation, one after the other.
#pragma once

#include "support/FailingMemory.h"

#include <cstddef>
#include <functional>
#include <new>
#include <optional>
#include <utility>

namespace testsupport {

/// One try of an operation.
/// \return whether the allocation that had to fail was asked for
using Attempt = std::function<bool(std::size_t k, Failing howMany)>;

/// Up to which allocation every one is made to fail. Behind it they are at seeded distances: four times their number,
/// divided by this, on the average.
constexpr std::size_t kEveryUpTo = 2000;

/// Has attempts made with the first, the second, ... allocation failing until that is not asked for, once with the one
/// allocation failing and once with all behind it, too. Except on Windows, each attempt has a thread of its own, on
/// which nothing has been made that lives as long as the thread, and leaves no memory behind. How many failed is
/// recorded as the test's property "failurePoints".
void RunWithEveryFailure(const Attempt& attempt, std::size_t everyUpTo);

/// Whether the action comes to its end. Anything but `std::bad_alloc` that it ends with fails the test.
bool IsDone(const std::function<void()>& action);

/// Tries an operation on an object with every allocation of it failing in turn.
/// \param begin makes the object anew for each try
/// \param operation is what memory runs out in: it ends with `std::bad_alloc`, or comes to its end although one
///   allocation has failed
/// \param check gets the object and whether the operation has come to its end, and sees whether all is well
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
    if (!isDone && !hasFailed) throw std::bad_alloc();  // for another reason than the one meant
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

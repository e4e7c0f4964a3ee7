// Memory that is counted, and runs out on demand.
#pragma once

#include <cstddef>

namespace testsupport {

// This holds anywhere in the program, but on Windows not in shared libraries.

/// How often memory has been allocated so far by `new`.
std::size_t AllocationCount();

/// How many pieces of memory of all kinds are held now: allocations less releases.
std::size_t HeldMemory();

/// Which allocations fail.
enum class Memory { OperatorNew, Bstr, Any };

/// How many of them fail: the k-th alone, or it and all behind it.
enum class Failing { Once, FromThenOn };

/// While it lives, the k-th allocation of that kind fails, counted from 1 and from now. One at a time, on one thread.
class CFailingMemory {
 public:
  CFailingMemory(Memory kind, std::size_t k, Failing howMany = Failing::Once);
  CFailingMemory(const CFailingMemory&) = delete;
  CFailingMemory& operator=(const CFailingMemory&) = delete;
  ~CFailingMemory();

  /// Whether the k-th allocation was asked for.
  bool HasFailed() const;
};

}  // namespace testsupport

// Memory that is counted and runs out on demand.
#pragma once

#include <cstddef>

namespace testsupport {

// All of this covers the whole program, but on Windows not shared libraries.

/// How many allocations `new` has made so far.
std::size_t AllocationCount();

/// How many blocks of memory of all kinds are held now: allocations minus releases.
std::size_t HeldMemory();

/// Which allocations fail.
enum class Memory { OperatorNew, Bstr, Any };

/// How many of them fail: the k-th alone, or the k-th and all after it.
enum class Failing { Once, FromThenOn };

/// While it lives, the k-th allocation of that kind fails, counting from 1 and from now. One at a time, on one thread.
class CFailingMemory {
 public:
  CFailingMemory(Memory kind, std::size_t k, Failing howMany = Failing::Once);
  CFailingMemory(const CFailingMemory&) = delete;
  CFailingMemory& operator=(const CFailingMemory&) = delete;
  ~CFailingMemory();

  /// Whether the k-th allocation has been requested.
  bool HasFailed() const;
};

}  // namespace testsupport

// Memory that is counted, and runs out on demand.
#pragma once

#include <cstddef>

namespace testsupport {

// This holds anywhere in the program, but on Windows not in shared libraries.

/// How often memory has been allocated so far by `new`.
std::size_t AllocationCount();

/// Which allocations fail.
enum class Memory { OperatorNew, Bstr };

/// While it lives, the k-th allocation of that kind fails, counted from 1 and from now. One at a time, on one thread.
class CFailingMemory {
 public:
  CFailingMemory(Memory kind, std::size_t k);
  CFailingMemory(const CFailingMemory&) = delete;
  CFailingMemory& operator=(const CFailingMemory&) = delete;
  ~CFailingMemory();

  /// Whether the k-th allocation was asked for.
  bool HasFailed() const;
};

}  // namespace testsupport

// Counts what is allocated by `new` anywhere in the program, in shared libraries too.
#pragma once

#include <cstddef>

namespace testsupport {

/// How often memory has been allocated so far.
std::size_t AllocationCount();

}  // namespace testsupport

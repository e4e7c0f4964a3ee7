// What the replaced allocation functions report and ask.
#pragma once

#include "support/FailingMemory.h"

namespace testsupport {

/// Whether this allocation has to fail.
/// \param kind its kind, not `Any`
bool MustFail(Memory kind);

/// Records that a block of memory has been allocated; null is ignored.
void* CountHeld(void* memory);

/// Records that a block of memory is released; null is ignored.
void CountReleased(const void* memory);

/// Records a call of `new`.
void CountNew();

}  // namespace testsupport

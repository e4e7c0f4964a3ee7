// What the replacements of the allocating functions tell of themselves, and are told.
#pragma once

#include "support/FailingMemory.h"

namespace testsupport {

/// Whether this allocation is one that has to fail.
/// \param kind which it is, not `Any`
bool MustFail(Memory kind);

/// Takes note of a piece of memory that has been allocated; null is none.
void* CountHeld(void* memory);

/// Takes note of a piece of memory that is released; null is none.
void CountReleased(const void* memory);

/// Takes note of a call of `new`.
void CountNew();

}  // namespace testsupport

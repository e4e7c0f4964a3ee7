#include "support/FailingMemory.h"

#include "support/CountedMemory.h"

#include <atomic>

namespace testsupport {

namespace {

std::atomic<std::size_t> g_allocations = 0;
std::atomic<std::size_t> g_held = 0;
bool g_isArmed = false;
Memory g_kind = Memory::OperatorNew;
Failing g_howMany = Failing::Once;
std::size_t g_left = 0;
bool g_hasFailed = false;

}  // namespace

std::size_t AllocationCount() { return g_allocations; }

std::size_t HeldMemory() { return g_held; }

bool MustFail(Memory kind) {
  if (!g_isArmed || (kind != g_kind && g_kind != Memory::Any)) return false;
  if (g_left == 0) return g_hasFailed && g_howMany == Failing::FromThenOn;
  if (--g_left != 0) return false;
  g_hasFailed = true;
  return true;
}

void* CountHeld(void* memory) {
  if (memory != nullptr) ++g_held;
  return memory;
}

void CountReleased(const void* memory) {
  if (memory != nullptr) --g_held;
}

void CountNew() { ++g_allocations; }

CFailingMemory::CFailingMemory(Memory kind, std::size_t k, Failing howMany) {
  g_kind = kind;
  g_howMany = howMany;
  g_left = k;
  g_hasFailed = false;
  g_isArmed = true;
}

CFailingMemory::~CFailingMemory() { g_isArmed = false; }

bool CFailingMemory::HasFailed() const { return g_hasFailed; }

}  // namespace testsupport

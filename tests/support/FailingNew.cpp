// Replaces the global operator new. In a file of its own, so that inlining never shows the compiler only half of a
// new/delete pair.
#include "support/CountedMemory.h"

#include <cstdlib>
#include <new>

namespace {

void* Allocate(std::size_t size) {
  testsupport::CountNew();
  if (testsupport::MustFail(testsupport::Memory::OperatorNew)) return nullptr;
  return testsupport::CountHeld(std::malloc(size != 0 ? size : 1));
}

void* AllocateOrThrow(std::size_t size) {
  void* memory = Allocate(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

void Release(void* memory) {
  testsupport::CountReleased(memory);
  std::free(memory);
}

}  // namespace

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* memory) noexcept { Release(memory); }
void operator delete[](void* memory) noexcept { Release(memory); }
void operator delete(void* memory, std::size_t) noexcept { Release(memory); }
void operator delete[](void* memory, std::size_t) noexcept { Release(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { Release(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { Release(memory); }

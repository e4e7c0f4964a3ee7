#include "msxml/MemoryWatch.h"

#include <libxml/xmlmemory.h>

#include <cstddef>
#include <mutex>
#include <new>
#include <utility>

namespace msxml {

namespace {

thread_local bool g_hasRunOut = false;

// What libxml2 allocated with before.
xmlFreeFunc g_free = nullptr;
xmlMallocFunc g_allocate = nullptr;
xmlMallocFunc g_allocateAtomic = nullptr;  // what will hold no pointers
xmlReallocFunc g_reallocate = nullptr;
xmlStrdupFunc g_duplicate = nullptr;

template <typename Memory>
Memory* Watched(Memory* memory) noexcept {
  if (memory == nullptr) g_hasRunOut = true;
  return memory;
}

void* Allocate(std::size_t size) { return Watched(g_allocate(size)); }

void* AllocateAtomic(std::size_t size) { return Watched(g_allocateAtomic(size)); }

void* Reallocate(void* memory, std::size_t size) {
  void* moved = g_reallocate(memory, size);
  return size != 0 ? Watched(moved) : moved;  // to nothing is a release
}

char* Duplicate(const char* text) { return Watched(g_duplicate(text)); }

}  // namespace

CMemoryWatch::CMemoryWatch() noexcept : m_hadRunOut(std::exchange(g_hasRunOut, false)) {}

CMemoryWatch::~CMemoryWatch() { g_hasRunOut = g_hasRunOut || m_hadRunOut; }

void CMemoryWatch::Install() {
  static std::once_flag once;
  std::call_once(once, [] {
    xmlGcMemGet(&g_free, &g_allocate, &g_allocateAtomic, &g_reallocate, &g_duplicate);
    xmlGcMemSetup(g_free, Allocate, AllocateAtomic, Reallocate, Duplicate);
  });
}

bool CMemoryWatch::HasRunOut() const noexcept { return g_hasRunOut; }

void CMemoryWatch::RequireMemory() const {
  if (HasRunOut()) throw std::bad_alloc();
}

}  // namespace msxml

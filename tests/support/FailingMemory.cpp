// The replacements of the global operator new and of the allocation of BSTRs. In a file of its own, so that the
// compiler does not see half of a pair of allocation and release where it inlines.
#include "support/FailingMemory.h"

#ifdef _WIN32
#include <windows.h>

#include <oleauto.h>
#else
#include "msxml/ComTypes.h"

#include <dlfcn.h>
#endif

#include <atomic>
#include <cstdlib>
#include <new>

namespace {

using testsupport::Memory;

std::atomic<std::size_t> g_allocations = 0;
bool g_isArmed = false;
Memory g_kind = Memory::OperatorNew;
std::size_t g_left = 0;
bool g_hasFailed = false;

bool MustFail(Memory kind) {
  if (!g_isArmed || kind != g_kind || g_left == 0 || --g_left != 0) return false;
  g_hasFailed = true;
  return true;
}

void* Allocate(std::size_t size) {
  ++g_allocations;
  return MustFail(Memory::OperatorNew) ? nullptr : std::malloc(size != 0 ? size : 1);
}

void* AllocateOrThrow(std::size_t size) {
  void* memory = Allocate(size);
  if (memory == nullptr) throw std::bad_alloc();
  return memory;
}

}  // namespace

namespace testsupport {

std::size_t AllocationCount() { return g_allocations; }

CFailingMemory::CFailingMemory(Memory kind, std::size_t k) {
  g_kind = kind;
  g_left = k;
  g_hasFailed = false;
  g_isArmed = true;
}

CFailingMemory::~CFailingMemory() { g_isArmed = false; }

bool CFailingMemory::HasFailed() const { return g_hasFailed; }

}  // namespace testsupport

void* operator new(std::size_t size) { return AllocateOrThrow(size); }
void* operator new[](std::size_t size) { return AllocateOrThrow(size); }
void* operator new(std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void* operator new[](std::size_t size, const std::nothrow_t&) noexcept { return Allocate(size); }
void operator delete(void* memory) noexcept { std::free(memory); }
void operator delete[](void* memory) noexcept { std::free(memory); }
void operator delete(void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete[](void* memory, std::size_t) noexcept { std::free(memory); }
void operator delete(void* memory, const std::nothrow_t&) noexcept { std::free(memory); }
void operator delete[](void* memory, const std::nothrow_t&) noexcept { std::free(memory); }

#ifdef _WIN32

namespace {

BSTR WINAPI AllocateBstr(const wchar_t* text, UINT length) {
  if (MustFail(Memory::Bstr)) return nullptr;
  const FARPROC real = GetProcAddress(GetModuleHandleW(L"oleaut32.dll"), "SysAllocStringLen");
  // Through the general type of functions, which the compiler lets pass.
  return reinterpret_cast<decltype(&AllocateBstr)>(reinterpret_cast<void (*)()>(real))(text, length);
}

}  // namespace

// Stands in place of the entry in this program's table of what it imports.
extern "C" {
extern decltype(&SysAllocStringLen) const __imp_SysAllocStringLen;  // NOLINT(bugprone-reserved-identifier)
decltype(&SysAllocStringLen) const __imp_SysAllocStringLen = &AllocateBstr;
}

#else

// Stands in front of the library's own, which it calls.
BSTR SysAllocStringLen(const wchar_t* text, UINT length) {
  if (MustFail(Memory::Bstr)) return nullptr;
  static const auto real =
      reinterpret_cast<decltype(&SysAllocStringLen)>(dlsym(RTLD_NEXT, "_Z17SysAllocStringLenPKwj"));
  return real(text, length);
}

#endif

// Allocates BSTRs in place of the system. Allocations inside a DLL are not seen, so none is counted as held: many are
// released that no call here has allocated.
#include "support/CountedMemory.h"

#include <windows.h>

#include <oleauto.h>

namespace {

BSTR WINAPI AllocateBstr(const wchar_t* text, UINT length) {
  if (testsupport::MustFail(testsupport::Memory::Bstr)) return nullptr;
  const FARPROC real = GetProcAddress(GetModuleHandleW(L"oleaut32.dll"), "SysAllocStringLen");
  // By way of a generic function type, which the compiler accepts.
  return reinterpret_cast<decltype(&AllocateBstr)>(reinterpret_cast<void (*)()>(real))(text, length);
}

}  // namespace

// Takes the place of the entry in this program's import table.
extern "C" {
extern decltype(&SysAllocStringLen) const __imp_SysAllocStringLen;  // NOLINT(bugprone-reserved-identifier)
decltype(&SysAllocStringLen) const __imp_SysAllocStringLen = &AllocateBstr;
}

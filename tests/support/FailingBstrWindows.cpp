// The allocation of BSTRs in place of the system's. Those that a DLL allocates are not seen, so none is counted as
// held: many are released that no call here has allocated.
#include "support/CountedMemory.h"

#include <windows.h>

#include <oleauto.h>

namespace {

BSTR WINAPI AllocateBstr(const wchar_t* text, UINT length) {
  if (testsupport::MustFail(testsupport::Memory::Bstr)) return nullptr;
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

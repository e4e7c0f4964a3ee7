// The allocation and release of BSTRs. They stand in front of the library's own, which they call.
#include "msxml/ComTypes.h"
#include "support/CountedMemory.h"

#include <dlfcn.h>

BSTR SysAllocStringLen(const wchar_t* text, UINT length) {
  if (testsupport::MustFail(testsupport::Memory::Bstr)) return nullptr;
  static const auto real =
      reinterpret_cast<decltype(&SysAllocStringLen)>(dlsym(RTLD_NEXT, "_Z17SysAllocStringLenPKwj"));
  BSTR allocated = real(text, length);
  testsupport::CountHeld(allocated);
  return allocated;
}

void SysFreeString(BSTR text) {
  static const auto real = reinterpret_cast<decltype(&SysFreeString)>(dlsym(RTLD_NEXT, "_Z13SysFreeStringPw"));
  testsupport::CountReleased(text);
  real(text);
}

// The library's own may have the release within it, where it would not be counted.
HRESULT VariantClear(VARIANT* variant) {
  if (variant->vt == VT_BSTR) SysFreeString(variant->bstrVal);
  VariantInit(variant);
  return S_OK;
}

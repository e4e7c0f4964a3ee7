// The allocation and release of BSTRs. They are found before the library's own, which they call.
#include "msxml/ComTypes.h"
#include "support/CountedMemory.h"

#include <dlfcn.h>

BSTR zocom::SysAllocStringLen(const wchar_t* text, UINT length) {
  if (testsupport::MustFail(testsupport::Memory::Bstr)) return nullptr;
  static const auto real =
      reinterpret_cast<decltype(&zocom::SysAllocStringLen)>(dlsym(RTLD_NEXT, "_ZN5zocom17SysAllocStringLenEPKwj"));
  BSTR allocated = real(text, length);
  testsupport::CountHeld(allocated);
  return allocated;
}

void zocom::SysFreeString(BSTR text) {
  static const auto real =
      reinterpret_cast<decltype(&zocom::SysFreeString)>(dlsym(RTLD_NEXT, "_ZN5zocom13SysFreeStringEPw"));
  testsupport::CountReleased(text);
  real(text);
}

// The library's own may have the release within it, where it would not be counted.
HRESULT zocom::VariantClear(VARIANT* variant) {
  if (variant->vt == VT_BSTR) SysFreeString(variant->bstrVal);
  VariantInit(variant);
  return S_OK;
}

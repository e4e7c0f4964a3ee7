#include "msxml/ComTypes.h"

#include <cstdlib>
#include <cstring>
#include <cwchar>
#include <limits>

namespace {

/// Stands before the characters. Its size keeps them aligned.
struct BstrHeader {
  UINT length;
};
static_assert(sizeof(BstrHeader) % alignof(wchar_t) == 0);

BstrHeader* HeaderOf(BSTR text) { return reinterpret_cast<BstrHeader*>(text) - 1; }

}  // namespace

namespace zocom {

BSTR SysAllocString(const wchar_t* text) {
  if (text == nullptr) return nullptr;
  const std::size_t length = std::wcslen(text);
  return length <= std::numeric_limits<UINT>::max() ? SysAllocStringLen(text, static_cast<UINT>(length)) : nullptr;
}

BSTR SysAllocStringLen(const wchar_t* text, UINT length) {
  void* memory = std::malloc(sizeof(BstrHeader) + (std::size_t{length} + 1) * sizeof(wchar_t));
  if (memory == nullptr) return nullptr;
  static_cast<BstrHeader*>(memory)->length = length;
  BSTR characters = reinterpret_cast<BSTR>(static_cast<BstrHeader*>(memory) + 1);
  if (text != nullptr && length != 0) std::memcpy(characters, text, std::size_t{length} * sizeof(wchar_t));
  characters[length] = L'\0';
  return characters;
}

void SysFreeString(BSTR text) {
  if (text != nullptr) std::free(HeaderOf(text));
}

UINT SysStringLen(BSTR text) { return text != nullptr ? HeaderOf(text)->length : 0; }

void VariantInit(VARIANT* variant) { *variant = {VT_EMPTY, nullptr}; }

HRESULT VariantClear(VARIANT* variant) {
  if (variant->vt == VT_BSTR) SysFreeString(variant->bstrVal);
  VariantInit(variant);
  return S_OK;
}

}  // namespace zocom

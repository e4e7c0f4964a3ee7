// The types and functions of COM that the XML interfaces are written with, for systems that have no COM.
//
// Only what the library uses is here. Names and numbers are COM's own; what differs is the width of the text:
// `wchar_t` is 32 bits wide on these systems and holds UTF-32.
#pragma once

#include "BaseUtilities/HostExport.h"

#include <cstdint>

using HRESULT = std::int32_t;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using UINT = std::uint32_t;
using VARIANT_BOOL = std::int16_t;
using VARTYPE = std::uint16_t;

constexpr bool SUCCEEDED(HRESULT result) { return result >= 0; }
constexpr bool FAILED(HRESULT result) { return result < 0; }

constexpr HRESULT S_OK = 0;
constexpr HRESULT S_FALSE = 1;
constexpr HRESULT E_NOTIMPL = static_cast<HRESULT>(0x80004001);
constexpr HRESULT E_NOINTERFACE = static_cast<HRESULT>(0x80004002);
constexpr HRESULT E_POINTER = static_cast<HRESULT>(0x80004003);
constexpr HRESULT E_FAIL = static_cast<HRESULT>(0x80004005);
constexpr HRESULT E_OUTOFMEMORY = static_cast<HRESULT>(0x8007000E);
constexpr HRESULT E_INVALIDARG = static_cast<HRESULT>(0x80070057);

constexpr VARIANT_BOOL VARIANT_TRUE = -1;
constexpr VARIANT_BOOL VARIANT_FALSE = 0;

struct GUID {
  std::uint32_t Data1;
  std::uint16_t Data2;
  std::uint16_t Data3;
  std::uint8_t Data4[8];

  friend constexpr bool operator==(const GUID&, const GUID&) = default;
};
using IID = GUID;
using REFIID = const IID&;

constexpr IID IID_IUnknown = {0x00000000, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

/// What all interfaces have in common: a count of references, at whose end the object goes.
struct IUnknown {
  /// \param object receives the interface, counted once more; null when the object does not have it
  virtual HRESULT QueryInterface(REFIID iid, void** object) = 0;
  virtual ULONG AddRef() = 0;
  virtual ULONG Release() = 0;

 protected:
  ~IUnknown() = default;
};

/// A text with its length before it and a NUL behind it. Null is the empty text.
using BSTR = wchar_t*;

/// \return null when the text is null or there is no memory
ZO_API BSTR SysAllocString(const wchar_t* text);

/// \param text may be null: the content is then for the caller to fill in
/// \return null when there is no memory
ZO_API BSTR SysAllocStringLen(const wchar_t* text, UINT length);

/// Null is allowed.
ZO_API void SysFreeString(BSTR text);

/// The number of characters; of null, 0.
ZO_API UINT SysStringLen(BSTR text);

constexpr VARTYPE VT_EMPTY = 0;
constexpr VARTYPE VT_NULL = 1;
constexpr VARTYPE VT_BSTR = 8;

/// A value that knows its type: empty, null or a text.
struct VARIANT {
  VARTYPE vt;
  BSTR bstrVal;  // with VT_BSTR only
};

ZO_API void VariantInit(VARIANT* variant);

/// Frees what the variant holds and makes it empty.
ZO_API HRESULT VariantClear(VARIANT* variant);

// The parts of COM that the XML interfaces need, under names that cannot clash with a program's own.
//
// Programs ported from Windows often have a `LONG`, a `GUID` or a `FAILED` of their own, sometimes as a macro. Where
// there is no COM, no public header mentions such a name, and `wchar_t` is 32 bits wide and holds UTF-32. Where there
// is, these are aliases of COM's own types.
#pragma once

#ifdef _WIN32

#include <windows.h>

#include <comdef.h>

namespace zocom {

using Guid = GUID;
using Result = HRESULT;
using Text = BSTR;
using Unknown = IUnknown;
using Variant = VARIANT;

using ::SysAllocStringLen;
using ::SysFreeString;
using ::SysStringLen;
using ::VariantClear;
using ::VariantInit;

constexpr Result kNullPointer = E_POINTER;
constexpr Result kOutOfMemory = E_OUTOFMEMORY;
constexpr VARTYPE kTextVariant = VT_BSTR;

}  // namespace zocom

#else

#include "BaseUtilities/HostExport.h"

#include <cstdint>

namespace zocom {

/// The result of a call: negative if it failed. The numbers are COM's.
using Result = std::int32_t;

/// A pointer was null where it must not be.
constexpr Result kNullPointer = static_cast<Result>(0x80004003);

/// Memory ran out.
constexpr Result kOutOfMemory = static_cast<Result>(0x8007000E);

/// The identifier of an interface.
struct Guid {
  std::uint32_t Data1;    ///< the first eight hexadecimal digits
  std::uint16_t Data2;    ///< the next four
  std::uint16_t Data3;    ///< the next four
  std::uint8_t Data4[8];  ///< the last sixteen, in pairs

  friend constexpr bool operator==(const Guid&, const Guid&) = default;
};

/// The identifier of `Unknown`.
constexpr Guid kUnknownId = {0x00000000, 0x0000, 0x0000, {0xC0, 0, 0, 0, 0, 0, 0, 0x46}};

/// What all interfaces have in common: a reference count. When it reaches 0, the object is deleted.
struct Unknown {
  /// \param iid the identifier of the interface asked for
  /// \param object receives the interface, with a reference for the caller; null if the object does not have it
  virtual Result QueryInterface(const Guid& iid, void** object) = 0;

  /// \return the new count
  virtual std::uint32_t AddRef() = 0;

  /// \return the new count
  virtual std::uint32_t Release() = 0;

 protected:
  ~Unknown() = default;
};

/// A text preceded by its length and followed by a NUL. Null is the empty text. `CBstr` owns one.
using Text = wchar_t*;

/// Copies a text up to its NUL. The caller frees the copy.
/// \return null if the text is null or memory runs out
ZO_API Text SysAllocString(const wchar_t* text);

/// Copies `length` characters. The caller frees the copy.
/// \param text may be null: the caller then fills in the content
/// \param length how many
/// \return null if memory runs out
ZO_API Text SysAllocStringLen(const wchar_t* text, std::uint32_t length);

/// Frees a text; does nothing with null.
ZO_API void SysFreeString(Text text);

/// The number of characters; 0 for null.
ZO_API std::uint32_t SysStringLen(Text text);

constexpr std::uint16_t kEmptyVariant = 0;  ///< the type of an empty value
constexpr std::uint16_t kNullVariant = 1;   ///< the type of a null value
constexpr std::uint16_t kTextVariant = 8;   ///< the type of a text

/// A value that knows its type: empty, null or a text. `CVariant` owns one.
struct Variant {
  std::uint16_t vt;  ///< its type: `kEmptyVariant`, `kNullVariant` or `kTextVariant`
  Text bstrVal;      ///< set only if the value is a text
};

/// Initialises memory as an empty value.
ZO_API void VariantInit(Variant* variant);

/// Frees what the value holds and makes it empty.
ZO_API Result VariantClear(Variant* variant);

}  // namespace zocom

#endif

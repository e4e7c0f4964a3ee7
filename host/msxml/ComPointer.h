// Owners of what COM counts and allocates: interface pointers, BSTRs and VARIANTs. The same on every system.
#pragma once

#ifdef _WIN32
#include <windows.h>

#include <comdef.h>
#else
#include "msxml/ComError.h"
#include "msxml/ComTypes.h"
#endif

#include <cstddef>
#include <string_view>
#include <utility>

/// Raises a call's failure.
/// \param result what the call gave
/// \param object what it was made on
/// \param iid the interface of it that the error names
/// \throws _com_error when the result is that of a failure
inline void RequireSuccess(HRESULT result, IUnknown& object, REFIID iid) {
  if (FAILED(result)) _com_issue_errorex(result, &object, iid);
}

/// A counted interface pointer; empty, or one reference of its own.
template <typename Interface>
class CComPointer {
 public:
  CComPointer() noexcept = default;
  CComPointer(std::nullptr_t) noexcept {}

  /// \param addRef whether to count a reference; false takes over the caller's
  explicit CComPointer(Interface* pointer, bool addRef = true) noexcept : m_pointer(pointer) {
    if (addRef && m_pointer != nullptr) m_pointer->AddRef();
  }

  CComPointer(const CComPointer& other) noexcept : CComPointer(other.m_pointer) {}
  CComPointer(CComPointer&& other) noexcept : m_pointer(std::exchange(other.m_pointer, nullptr)) {}

  CComPointer& operator=(const CComPointer& other) noexcept {
    if (this != &other) *this = CComPointer(other);
    return *this;
  }
  CComPointer& operator=(CComPointer&& other) noexcept {
    std::swap(m_pointer, other.m_pointer);
    return *this;
  }

  ~CComPointer() {
    if (m_pointer != nullptr) m_pointer->Release();
  }

  /// The pointer without a reference of its own; null when empty.
  Interface* GetInterfacePtr() const noexcept { return m_pointer; }

  /// \throws _com_error E_POINTER when empty
  Interface* operator->() const { return &**this; }

  /// \throws _com_error E_POINTER when empty
  Interface& operator*() const {
    if (m_pointer == nullptr) _com_issue_error(E_POINTER);
    return *m_pointer;
  }

  /// Empties this and gives a call the place to put a counted pointer into.
  Interface** Receive() noexcept {
    *this = CComPointer();
    return &m_pointer;
  }

  /// Gives the reference away.
  Interface* Detach() noexcept { return std::exchange(m_pointer, nullptr); }

  explicit operator bool() const noexcept { return m_pointer != nullptr; }
  friend bool operator==(const CComPointer& pointer, std::nullptr_t) noexcept { return pointer.m_pointer == nullptr; }

 private:
  Interface* m_pointer = nullptr;
};

/// A BSTR that is freed with its holder.
class CBstr {
 public:
  CBstr() noexcept = default;

  /// \throws _com_error E_OUTOFMEMORY
  explicit CBstr(std::wstring_view text) : m_text(SysAllocStringLen(text.data(), static_cast<UINT>(text.size()))) {
    if (m_text == nullptr) _com_issue_error(E_OUTOFMEMORY);
  }

  CBstr(const CBstr&) = delete;
  CBstr(CBstr&& other) noexcept : m_text(std::exchange(other.m_text, nullptr)) {}
  CBstr& operator=(const CBstr&) = delete;
  CBstr& operator=(CBstr&&) = delete;
  ~CBstr() { SysFreeString(m_text); }

  /// The text, borrowed; null is the empty text.
  BSTR get() const noexcept { return m_text; }

  std::wstring_view View() const noexcept { return {m_text != nullptr ? m_text : L"", SysStringLen(m_text)}; }

  /// Empties this and gives a call the place to put a text into.
  BSTR* Receive() noexcept {
    SysFreeString(std::exchange(m_text, nullptr));
    return &m_text;
  }

  /// Gives the text away.
  BSTR Detach() noexcept { return std::exchange(m_text, nullptr); }

 private:
  BSTR m_text = nullptr;
};

/// A VARIANT that is cleared with its holder.
class CVariant {
 public:
  CVariant() noexcept { VariantInit(&m_variant); }
  explicit CVariant(CBstr text) noexcept : CVariant() {
    m_variant.vt = VT_BSTR;
    m_variant.bstrVal = text.Detach();
  }
  CVariant(const CVariant&) = delete;
  CVariant& operator=(const CVariant&) = delete;
  ~CVariant() { VariantClear(&m_variant); }

  const VARIANT& get() const noexcept { return m_variant; }

  /// The text; empty when the value is none.
  std::wstring_view Text() const noexcept {
    if (m_variant.vt != VT_BSTR || m_variant.bstrVal == nullptr) return {};
    return {m_variant.bstrVal, SysStringLen(m_variant.bstrVal)};
  }

  /// Empties this and gives a call the place to put a value into.
  VARIANT* Receive() noexcept {
    VariantClear(&m_variant);
    return &m_variant;
  }

 private:
  VARIANT m_variant;
};

// Owners of what COM counts and allocates: interface pointers, texts and values. They are the same on every system.
#pragma once

#include "msxml/Com.h"

#ifndef _WIN32
#include "msxml/ComError.h"
#endif

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>

/// Throws if a call has failed.
/// \param result what the call returned
/// \param object the object that it was made on
/// \param iid the interface that the error names
/// \throws _com_error if the result is a failure
inline void RequireSuccess(zocom::Result result, zocom::Unknown& object, const zocom::Guid& iid) {
  if (result < 0) _com_issue_errorex(result, &object, iid);
}

/// A counted interface pointer; empty, or with one reference of its own.
template <typename Interface>
class CComPointer {
 public:
  CComPointer() noexcept = default;

  /// An empty pointer.
  CComPointer(std::nullptr_t) noexcept {}

  /// \param pointer the interface; may be null
  /// \param addRef whether to count a reference; false takes over the caller's
  explicit CComPointer(Interface* pointer, bool addRef = true) noexcept : m_pointer(pointer) {
    if (addRef && m_pointer != nullptr) m_pointer->AddRef();
  }

  /// Counts a reference of its own.
  CComPointer(const CComPointer& other) noexcept : CComPointer(other.m_pointer) {}
  /// Takes over the other's reference and leaves it empty.
  CComPointer(CComPointer&& other) noexcept : m_pointer(std::exchange(other.m_pointer, nullptr)) {}

  /// Releases its reference and counts one to the other's object.
  CComPointer& operator=(const CComPointer& other) noexcept {
    if (this != &other) *this = CComPointer(other);
    return *this;
  }

  /// Swaps the two pointers.
  CComPointer& operator=(CComPointer&& other) noexcept {
    std::swap(m_pointer, other.m_pointer);
    return *this;
  }

  ~CComPointer() {
    if (m_pointer != nullptr) m_pointer->Release();
  }

  /// The pointer, without adding a reference; null if empty.
  Interface* GetInterfacePtr() const noexcept { return m_pointer; }

  /// \throws _com_error E_POINTER if empty
  Interface* operator->() const { return &**this; }

  /// \throws _com_error E_POINTER if empty
  Interface& operator*() const {
    if (m_pointer == nullptr) _com_issue_error(zocom::kNullPointer);
    return *m_pointer;
  }

  /// Empties this and returns the place where a call stores its answer, a counted pointer.
  Interface** Receive() noexcept {
    *this = CComPointer();
    return &m_pointer;
  }

  /// Hands the reference over to the caller.
  Interface* Detach() noexcept { return std::exchange(m_pointer, nullptr); }

  /// Whether it is not empty.
  explicit operator bool() const noexcept { return m_pointer != nullptr; }
  friend bool operator==(const CComPointer& pointer, std::nullptr_t) noexcept { return pointer.m_pointer == nullptr; }

 private:
  Interface* m_pointer = nullptr;
};

/// Owns a text, a `BSTR` in COM.
class CBstr {
 public:
  CBstr() noexcept = default;

  /// \throws _com_error E_OUTOFMEMORY
  explicit CBstr(std::wstring_view text)
      : m_text(zocom::SysAllocStringLen(text.data(), static_cast<std::uint32_t>(text.size()))) {
    if (m_text == nullptr) _com_issue_error(zocom::kOutOfMemory);
  }

  CBstr(const CBstr&) = delete;

  /// Takes over the other's text and leaves it empty.
  CBstr(CBstr&& other) noexcept : m_text(std::exchange(other.m_text, nullptr)) {}
  CBstr& operator=(const CBstr&) = delete;
  CBstr& operator=(CBstr&&) = delete;
  ~CBstr() { zocom::SysFreeString(m_text); }

  /// The text, borrowed; null is the empty text.
  zocom::Text get() const noexcept { return m_text; }

  /// The text, valid until this is changed or destroyed.
  std::wstring_view View() const noexcept { return {m_text != nullptr ? m_text : L"", zocom::SysStringLen(m_text)}; }

  /// Empties this and returns the place where a call stores its answer, which this then owns.
  zocom::Text* Receive() noexcept {
    if (m_text != nullptr) zocom::SysFreeString(std::exchange(m_text, nullptr));
    return &m_text;
  }

  /// Hands the text over to the caller.
  zocom::Text Detach() noexcept { return std::exchange(m_text, nullptr); }

 private:
  zocom::Text m_text = nullptr;
};

/// Owns a value, a `VARIANT` in COM.
class CVariant {
 public:
  CVariant() noexcept { zocom::VariantInit(&m_variant); }

  /// A value that is a text.
  explicit CVariant(CBstr text) noexcept : CVariant() {
    m_variant.vt = zocom::kTextVariant;
    m_variant.bstrVal = text.Detach();
  }
  CVariant(const CVariant&) = delete;
  CVariant& operator=(const CVariant&) = delete;
  ~CVariant() { zocom::VariantClear(&m_variant); }

  /// The value, borrowed.
  const zocom::Variant& get() const noexcept { return m_variant; }

  /// The text; empty if the value is not a text.
  std::wstring_view Text() const noexcept {
    if (m_variant.vt != zocom::kTextVariant || m_variant.bstrVal == nullptr) return {};
    return {m_variant.bstrVal, zocom::SysStringLen(m_variant.bstrVal)};
  }

  /// Empties this and returns the place where a call stores its answer, which this then owns.
  zocom::Variant* Receive() noexcept {
    zocom::VariantClear(&m_variant);
    return &m_variant;
  }

 private:
  zocom::Variant m_variant;
};

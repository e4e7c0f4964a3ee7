// Reference counting for the objects behind the interfaces.
#pragma once

#include "msxml/ComTypes.h"

#include <atomic>

namespace libxml2 {

/// Implements the count; the object starts with one reference and deletes itself with the last.
template <typename Interface>
class CCounted : public Interface {
 public:
  CCounted() = default;
  CCounted(const CCounted&) = delete;
  CCounted& operator=(const CCounted&) = delete;
  virtual ~CCounted() = default;

  ULONG AddRef() override { return ++m_references; }

  ULONG Release() override {
    // Whoever has the only reference shares it with nobody, so counting it down can be saved, which is dear where
    // threads could share it.
    const ULONG left = m_references.load(std::memory_order_acquire) == 1 ? 0 : --m_references;
    if (left == 0) delete this;
    return left;
  }

 private:
  std::atomic<ULONG> m_references{1};
};

/// Answers QueryInterface for an object that can be asked for it.
inline HRESULT Answer(IUnknown* interface, void** object) {
  interface->AddRef();
  *object = interface;
  return S_OK;
}

inline HRESULT RefuseInterface(void** object) {
  *object = nullptr;
  return E_NOINTERFACE;
}

}  // namespace libxml2

// Reference counting for the objects behind the interfaces.
#pragma once

#include "msxml/ComTypes.h"

#include <atomic>

namespace libxml2 {

/// Implements reference counting; an object starts with one reference and is deleted with the last.
template <typename Interface>
class CCounted : public Interface {
 public:
  CCounted() = default;
  CCounted(const CCounted&) = delete;
  CCounted& operator=(const CCounted&) = delete;
  virtual ~CCounted() = default;

  ULONG AddRef() override { return ++m_references; }

  ULONG Release() override {
    // The owner of the only reference shares the object with nobody, so the atomic decrement, which is expensive, can
    // be skipped.
    const ULONG left = m_references.load(std::memory_order_acquire) == 1 ? 0 : --m_references;
    if (left == 0) delete this;
    return left;
  }

 private:
  std::atomic<ULONG> m_references{1};
};

/// Answers a QueryInterface call that the object supports.
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

#include "BaseUtilities/ThreadBuffer.h"

#include <windows.h>

#include <memory>
#include <new>

namespace {

void NTAPI Destroy(void* buffer) { delete static_cast<CSimpleBuffer*>(buffer); }

}  // namespace

CThreadBuffers::CThreadBuffers() : m_slot(FlsAlloc(Destroy)) {
  if (m_slot == FLS_OUT_OF_INDEXES) throw std::bad_alloc();
}

CThreadBuffers::~CThreadBuffers() { FlsFree(m_slot); }

CSimpleBuffer& CThreadBuffers::Get() const {
  if (void* mine = FlsGetValue(m_slot); mine != nullptr) return *static_cast<CSimpleBuffer*>(mine);
  auto made = std::make_unique<CSimpleBuffer>();
  if (FlsSetValue(m_slot, made.get()) == 0) throw std::bad_alloc();
  return *made.release();
}

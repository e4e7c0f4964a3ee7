// Per-thread buffers.
#pragma once

#include "BaseUtilities/SimpleBuffer.h"

#ifdef _WIN32

/// One buffer for each thread that asks, destroyed with the thread. Uses the system's thread-local storage, because
/// MinGW-w64 destroys `thread_local` objects after their memory has been freed, when it may already be another
/// thread's.
class ZO_API CThreadBuffers {
 public:
  /// \throws std::bad_alloc
  CThreadBuffers();
  CThreadBuffers(const CThreadBuffers&) = delete;
  CThreadBuffers& operator=(const CThreadBuffers&) = delete;
  /// Destroys the buffers of all threads.
  ~CThreadBuffers();

  /// The calling thread's buffer, created on first use.
  /// \throws std::bad_alloc
  CSimpleBuffer& Get() const;

 private:
  unsigned long m_slot;
};

#endif

/// The calling thread's buffer for one purpose, which the type identifies. Created on first use, destroyed with the
/// thread.
/// \throws std::bad_alloc
template <typename Purpose>
CSimpleBuffer& ThreadBuffer() {
#ifdef _WIN32
  static const CThreadBuffers buffers;
  return buffers.Get();
#else
  thread_local CSimpleBuffer buffer;
  return buffer;
#endif
}

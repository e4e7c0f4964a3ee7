// Buffers that each thread has for itself.
#pragma once

#include "BaseUtilities/SimpleBuffer.h"

#ifdef _WIN32

/// A buffer for each thread that asks, which goes with the thread. Made of the system's own storage for threads,
/// because MinGW-w64 destroys what is `thread_local` when its memory has already been given back, and may be another
/// thread's.
class ZO_API CThreadBuffers {
 public:
  /// \throws std::bad_alloc
  CThreadBuffers();
  CThreadBuffers(const CThreadBuffers&) = delete;
  CThreadBuffers& operator=(const CThreadBuffers&) = delete;
  /// The buffers of all threads go.
  ~CThreadBuffers();

  /// The calling thread's buffer, made at its first use.
  /// \throws std::bad_alloc
  CSimpleBuffer& Get() const;

 private:
  unsigned long m_slot;
};

#endif

/// The calling thread's buffer for one purpose, which the type stands for: made at its first use, gone with the thread.
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

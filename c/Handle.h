// What all handles have in common.
#pragma once

#include <cstdint>

namespace vifc {

/// The kinds of handles. The types that the caller sees are derived from `CHandle` of their kind.
enum class HandleKind : std::uint8_t { File, Positions, Findings, Differences, Ports, Explanation, Text };

#ifdef VENDORINFOFILE_CHECK_HANDLES

/// Remembers a handle for as long as it lives.
/// \throws std::bad_alloc
void Register(const void* handle, HandleKind kind);
void Unregister(const void* handle) noexcept;

/// Whether a handle is alive and of that kind; if not, says so on standard error. Does not look at what it points to.
bool IsAlive(const void* handle, HandleKind kind) noexcept;

#endif

template <HandleKind Kind>
class CHandle {
 public:
  static constexpr HandleKind kKind = Kind;

#ifdef VENDORINFOFILE_CHECK_HANDLES
  CHandle() { Register(this, Kind); }
  ~CHandle() { Unregister(this); }
#else
  CHandle() = default;
  ~CHandle() = default;
#endif
  CHandle(const CHandle&) = delete;
  CHandle& operator=(const CHandle&) = delete;
};

/// Whether a function that has no status may look at the handle.
template <typename Handle>
bool IsUsable(const Handle* handle) noexcept {
#ifdef VENDORINFOFILE_CHECK_HANDLES
  return handle != nullptr && IsAlive(static_cast<const CHandle<Handle::kKind>*>(handle), Handle::kKind);
#else
  return handle != nullptr;
#endif
}

/// Frees a handle; null is ignored.
template <typename Handle>
void Free(Handle* handle) noexcept {
  if (IsUsable(handle)) delete handle;
}

}  // namespace vifc

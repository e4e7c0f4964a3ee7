// What all handles have in common.
#pragma once

#include <cstdint>

namespace vifc {

/// The kinds of handles. The types that the caller sees are derived from `CHandle` of their kind.
enum class HandleKind : std::uint8_t { File, Positions, Findings, Differences, Ports, Explanation, Text };

#ifdef VENDORINFOFILE_CHECK_HANDLES

// Handles are told apart by their addresses alone: what is there may not be a handle any more, or not yet.

/// Remembers a handle for as long as it lives.
/// \throws std::bad_alloc
void Register(std::uintptr_t handle, HandleKind kind);
void Unregister(std::uintptr_t handle) noexcept;

/// Whether a handle is alive and of that kind; if not, says so on standard error.
bool IsAlive(std::uintptr_t handle, HandleKind kind) noexcept;

#endif

template <HandleKind Kind>
class CHandle {
 public:
  static constexpr HandleKind kKind = Kind;

#ifdef VENDORINFOFILE_CHECK_HANDLES
  CHandle() { Register(reinterpret_cast<std::uintptr_t>(this), Kind); }
  ~CHandle() { Unregister(reinterpret_cast<std::uintptr_t>(this)); }
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
  const CHandle<Handle::kKind>* base = handle;
  return base != nullptr && IsAlive(reinterpret_cast<std::uintptr_t>(base), Handle::kKind);
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

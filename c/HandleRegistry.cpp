// The handles that are alive, in libraries built for debugging.
#ifdef VENDORINFOFILE_CHECK_HANDLES

#include "Handle.h"

#include <cstdio>
#include <map>
#include <mutex>

namespace vifc {

namespace {

struct Registry {
  std::mutex mutex;
  std::map<std::uintptr_t, HandleKind> alive;
};

/// Never destroyed: handles may be freed while the process ends.
Registry& TheRegistry() {
  static auto& registry = *new Registry;
  return registry;
}

}  // namespace

void Register(std::uintptr_t handle, HandleKind kind) {
  Registry& registry = TheRegistry();
  const std::lock_guard lock(registry.mutex);
  registry.alive[handle] = kind;
}

void Unregister(std::uintptr_t handle) noexcept {
  Registry& registry = TheRegistry();
  const std::lock_guard lock(registry.mutex);
  registry.alive.erase(handle);
}

bool IsAlive(std::uintptr_t handle, HandleKind kind) noexcept {
  Registry& registry = TheRegistry();
  const std::lock_guard lock(registry.mutex);
  const auto found = registry.alive.find(handle);
  if (found != registry.alive.end() && found->second == kind) return true;
  const char* why = found == registry.alive.end() ? "has been freed, or never was one" : "is of another kind";
  std::fprintf(stderr, "vif: a handle %s\n", why);
  return false;
}

}  // namespace vifc

#endif

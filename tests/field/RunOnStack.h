// Runs code on a stack of a size of its own.
#pragma once

#include <cstddef>
#include <exception>
#include <functional>
#include <system_error>
#include <thread>

#ifndef _WIN32
#include <pthread.h>
#endif

namespace testsupport {

#if defined(__has_feature)
#define VIF_TEST_HAS_FEATURE(feature) __has_feature(feature)
#else
#define VIF_TEST_HAS_FEATURE(feature) 0
#endif

#if defined(__SANITIZE_THREAD__) || VIF_TEST_HAS_FEATURE(thread_sanitizer)
constexpr bool kIsThreadSanitized = true;
#else
constexpr bool kIsThreadSanitized = false;
#endif

// A stack as small as a host's threads may have. Without optimisation, and with sanitizers, stack frames are several
// times as large as those of a delivered library.
#if defined(NDEBUG) && !defined(__SANITIZE_ADDRESS__) && !VIF_TEST_HAS_FEATURE(address_sanitizer)
constexpr std::size_t kSmallStack = kIsThreadSanitized ? 8 * 1024 * 1024 : 512 * 1024;
#else
constexpr std::size_t kSmallStack = 8 * 1024 * 1024;
#endif

/// Runs the action in a thread with a stack of so many bytes, or of the system's usual size where a thread's stack
/// cannot be chosen, and waits for it. Exceptions of the action pass.
inline void RunOnStack([[maybe_unused]] std::size_t bytes, const std::function<void()>& action) {
  struct Task {
    const std::function<void()>& action;
    std::exception_ptr failure;
  } task = {action, nullptr};
  const auto run = [](void* argument) -> void* {
    auto& started = *static_cast<Task*>(argument);
    try {
      started.action();
    } catch (...) {
      started.failure = std::current_exception();
    }
    return nullptr;
  };
#ifdef _WIN32
  std::thread(run, &task).join();
#else
  pthread_attr_t attributes;
  pthread_attr_init(&attributes);
  pthread_attr_setstacksize(&attributes, bytes);
  pthread_t thread{};
  const int error = pthread_create(&thread, &attributes, run, &task);
  pthread_attr_destroy(&attributes);
  if (error != 0) throw std::system_error(error, std::generic_category(), "pthread_create");
  pthread_join(thread, nullptr);
#endif
  if (task.failure) std::rethrow_exception(task.failure);
}

inline void RunOnSmallStack(const std::function<void()>& action) { RunOnStack(kSmallStack, action); }

}  // namespace testsupport

// Runs code on a stack of a size of its own.
#pragma once

#include <cstddef>
#include <exception>
#include <functional>
#include <system_error>

#ifdef _WIN32
#include <windows.h>

#include <process.h>
#include <cerrno>
#include <cstdint>
#else
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

/// A stack as small as a host's threads may have.
constexpr std::size_t kSmallStack = std::size_t{256} * 1024;

/// The stack that most systems give a program.
constexpr std::size_t kOrdinaryStack = std::size_t{8} * 1024 * 1024;

/// Runs the action in a thread with a stack of so many bytes, and waits for it. Exceptions of the action pass.
inline void RunOnStack(std::size_t bytes, const std::function<void()>& action) {
  struct Task {
    const std::function<void()>& action;
    std::exception_ptr failure;
  } task = {action, nullptr};
#ifdef _WIN32
  using Result = unsigned;
#else
  using Result = void*;
#endif
  const auto run = [](void* argument) -> Result {
    auto& started = *static_cast<Task*>(argument);
    try {
      started.action();
    } catch (...) {
      started.failure = std::current_exception();
    }
    return {};
  };
#ifdef _WIN32
  const std::uintptr_t started =
      _beginthreadex(nullptr, static_cast<unsigned>(bytes), run, &task, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
  if (started == 0) throw std::system_error(errno, std::generic_category(), "_beginthreadex");
  auto* const thread = reinterpret_cast<HANDLE>(started);
  WaitForSingleObject(thread, INFINITE);
  CloseHandle(thread);
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

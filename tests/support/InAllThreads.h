// Does the same in several threads at once.
#pragma once

#include <array>
#include <atomic>
#include <cstddef>
#include <exception>
#include <thread>
#include <vector>

namespace testsupport {

constexpr std::size_t kThreads = 8;

/// Runs the action, which gets the number of its thread, in all threads at once and returns the result of each.
template <typename Action>
auto InAllThreads(const Action& action) {
  std::array<decltype(action(std::size_t{})), kThreads> results;
  std::array<std::exception_ptr, kThreads> failures;
  std::atomic<std::size_t> waiting = kThreads;
  std::vector<std::thread> threads;
  for (std::size_t number = 0; number < kThreads; ++number) {
    threads.emplace_back([&, number] {
      --waiting;
      while (waiting != 0) std::this_thread::yield();
      try {
        results[number] = action(number);
      } catch (...) {
        failures[number] = std::current_exception();
      }
    });
  }
  for (std::thread& thread : threads) thread.join();
  for (const std::exception_ptr& failure : failures) {
    if (failure) std::rethrow_exception(failure);
  }
  return results;
}

}  // namespace testsupport

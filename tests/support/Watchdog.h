// A time limit for tests that might never end.
#pragma once

#include <chrono>
#include <condition_variable>
#include <cstdio>
#include <cstdlib>
#include <mutex>
#include <thread>

namespace testsupport {

/// Ends the program if it lives longer than the limit.
class CWatchdog {
 public:
  explicit CWatchdog(std::chrono::seconds limit) : m_thread([this, limit] { Watch(limit); }) {}
  CWatchdog(const CWatchdog&) = delete;
  CWatchdog& operator=(const CWatchdog&) = delete;
  ~CWatchdog() {
    {
      const std::lock_guard lock(m_mutex);
      m_hasEnded = true;
    }
    m_end.notify_one();
    m_thread.join();
  }

 private:
  void Watch(std::chrono::seconds limit) {
    std::unique_lock lock(m_mutex);
    if (m_end.wait_for(lock, limit, [this] { return m_hasEnded; })) return;
    std::fputs("The test takes too long.\n", stderr);
    std::_Exit(EXIT_FAILURE);
  }

  std::mutex m_mutex;
  std::condition_variable m_end;
  bool m_hasEnded = false;
  std::thread m_thread;
};

}  // namespace testsupport

// Tells an observer now and then how far reading is.
#pragma once

#include "VifSource.h"

#include <cstdint>

namespace vif {

/// Calls the observer of a source whenever reading has come a stretch further. Without one it takes no time.
class CProgressMeter {
 public:
  /// Calls the observer for the start.
  CProgressMeter(const CVifSource& source, std::uint64_t stretch)
      : m_observer(source.Progress()), m_stretch(stretch), m_next(m_observer != nullptr ? 0 : kNever) {
    if (m_observer == nullptr) return;
    m_total = source.Size().value_or(0);
    Reach(0, 0);
  }

  /// \param at how far it is, in the unit of the stretch
  /// \param done the number of bytes that the observer is told
  void Reach(std::uint64_t at, std::uint64_t done) {
    if (at < m_next) return;
    m_next = at + m_stretch;
    (*m_observer)(done, m_total);
  }

  /// Calls the observer for the whole file.
  void Finish() {
    if (m_observer != nullptr) (*m_observer)(m_total, m_total);
  }

  std::uint64_t Total() const { return m_total; }

 private:
  static constexpr std::uint64_t kNever = UINT64_MAX;

  const VifProgressObserver* m_observer;
  std::uint64_t m_stretch;
  std::uint64_t m_next;
  std::uint64_t m_total = 0;
};

}  // namespace vif

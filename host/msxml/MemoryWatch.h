// Whether libxml2 has run out of memory.
#pragma once

namespace msxml {

/// Notices when an allocation of libxml2's fails on this thread. libxml2 does not always say so: to its parser a name
/// that could not be kept is no name, and a node that could not be listed is not found. One that lives inside another
/// one begins anew, and the outer one gets to know what the inner has noticed. It stays on the thread that made it.
class CMemoryWatch {
 public:
  CMemoryWatch() noexcept;
  CMemoryWatch(const CMemoryWatch&) = delete;
  CMemoryWatch& operator=(const CMemoryWatch&) = delete;
  ~CMemoryWatch();

  /// Has libxml2 allocate through functions that call those set so far, from the first call on. Before that, none of
  /// these sees anything. Threads may call it at once.
  static void Install();

  /// Whether an allocation has failed while this lives.
  bool HasRunOut() const noexcept;

  /// \throws std::bad_alloc when one has
  void RequireMemory() const;

 private:
  bool m_hadRunOut;  // before this lived
};

}  // namespace msxml

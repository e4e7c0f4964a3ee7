// Collects the reasons why a document is not valid.
#pragma once

#include "TestUtilities/DOMDocProblem.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace xmlfile {

/// It is filled from callbacks, which must not throw: if memory runs out, that is recorded and thrown later.
class CProblems {
 public:
  void Add(std::size_t line, std::size_t column, std::string_view element, std::string_view reason) noexcept;

  /// Discards the problems, but still remembers that memory ran out.
  void Clear() noexcept {
    m_list.clear();
    m_omitted = 0;
  }

  /// Records that memory ran out.
  void RanOutOfMemory() noexcept { m_isOutOfMemory = true; }

  bool IsEmpty() const noexcept { return m_list.empty() && !m_isOutOfMemory; }

  /// \throws std::bad_alloc if memory ran out meanwhile
  std::vector<DOMDocProblem> Take();

 private:
  std::vector<DOMDocProblem> m_list;
  std::size_t m_omitted = 0;
  bool m_isOutOfMemory = false;
};

}  // namespace xmlfile

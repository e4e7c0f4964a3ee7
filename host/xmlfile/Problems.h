// Collects the reasons why a document is not valid.
#pragma once

#include "TestUtilities/DOMDocProblem.h"

#include <cstddef>
#include <string_view>
#include <vector>

namespace xmlfile {

/// Is filled from callbacks, which no exception may leave: memory that runs out is kept and raised later.
class CProblems {
 public:
  void Add(std::size_t line, std::size_t column, std::string_view element, std::string_view reason) noexcept;

  /// Forgets the problems, but not that memory ran out.
  void Clear() noexcept {
    m_list.clear();
    m_omitted = 0;
  }

  /// Remembers that memory ran out.
  void RanOutOfMemory() noexcept { m_isOutOfMemory = true; }

  bool IsEmpty() const noexcept { return m_list.empty() && !m_isOutOfMemory; }

  /// \throws std::bad_alloc when memory ran out on the way
  std::vector<DOMDocProblem> Take();

 private:
  std::vector<DOMDocProblem> m_list;
  std::size_t m_omitted = 0;
  bool m_isOutOfMemory = false;
};

}  // namespace xmlfile

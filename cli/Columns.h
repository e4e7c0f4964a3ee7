// Text in aligned columns.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

namespace cli {

/// Collects rows of printable cells and writes them in aligned columns. Lines are cut to the width of a terminal, but
/// not in a pipe.
class CColumns {
 public:
  /// \param indent the number of blanks before each line
  explicit CColumns(std::size_t indent = 0) : m_indent(indent) {}

  /// All rows must have the same number of cells.
  void Add(std::vector<std::string> row) { m_rows.push_back(std::move(row)); }

  /// Writes all rows to standard output.
  void Write() const;

 private:
  std::vector<std::size_t> NaturalWidths(std::size_t widest) const;
  void WriteRow(const std::vector<std::string>& row, const std::vector<std::size_t>& widths, bool cut) const;

  std::size_t m_indent;
  std::vector<std::vector<std::string>> m_rows;
};

}  // namespace cli

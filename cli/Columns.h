// Text in aligned columns.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>
#include <vector>

namespace cli {

/// Whether the text of a cell is from a file, or dimmed, because it is an addition of the command.
enum class CellStyle : std::uint8_t { Plain, Dimmed };

/// Collects rows of printable cells and writes them in aligned columns. Lines are cut to the width of a terminal, but
/// not in a pipe.
class CColumns {
 public:
  /// \param indent the number of blanks before each line
  explicit CColumns(std::size_t indent = 0) : m_indent(indent) {}

  /// All rows must have the same number of cells.
  /// \param lastCell the style of the last cell; the others are plain
  void Add(std::vector<std::string> cells, CellStyle lastCell = CellStyle::Plain) {
    m_rows.push_back({std::move(cells), lastCell});
  }

  /// Writes all rows to standard output.
  void Write() const;

 private:
  struct Row {
    std::vector<std::string> cells;
    CellStyle lastCell;
  };

  std::vector<std::size_t> NaturalWidths(std::size_t widest) const;
  void WriteRow(const Row& row, const std::vector<std::size_t>& widths, bool cut) const;

  std::size_t m_indent;
  std::vector<Row> m_rows;
};

}  // namespace cli

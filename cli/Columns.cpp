#include "Columns.h"

#include "Output.h"
#include "Style.h"

#include <analysis/Text.h>

#include <algorithm>
#include <numeric>
#include <optional>

namespace cli {

using vifanalysis::CutToWidth;
using vifanalysis::DisplayWidth;

namespace {

constexpr std::size_t kGap = 2;

/// In a pipe, longer cells are not cut, but stick out instead of widening the column.
constexpr std::size_t kWidestColumn = 60;
constexpr std::size_t kNarrowestColumn = 6;

/// Narrows the widest columns until the line fits or all have the least readable width.
void Fit(std::vector<std::size_t>& widths, std::size_t lineWidth) {
  const std::size_t gaps = kGap * (widths.size() - 1);
  while (std::accumulate(widths.begin(), widths.end(), gaps) > lineWidth) {
    const auto widest = std::max_element(widths.begin(), widths.end());
    if (*widest <= kNarrowestColumn) return;
    --*widest;
  }
}

}  // namespace

void CColumns::Write() const {
  if (m_rows.empty()) return;
  const std::optional<std::size_t> lineWidth = TerminalWidth();
  std::vector<std::size_t> widths = NaturalWidths(lineWidth.value_or(kWidestColumn));
  if (lineWidth) Fit(widths, *lineWidth > m_indent ? *lineWidth - m_indent : 0);
  for (const Row& row : m_rows) WriteRow(row, widths, lineWidth.has_value());
}

std::vector<std::size_t> CColumns::NaturalWidths(std::size_t widest) const {
  std::vector<std::size_t> widths(m_rows.front().cells.size());
  for (const Row& row : m_rows) {
    for (std::size_t i = 0; i < row.cells.size(); ++i) {
      widths[i] = std::max(widths[i], std::min(DisplayWidth(row.cells[i]), widest));
    }
  }
  return widths;
}

void CColumns::WriteRow(const Row& row, const std::vector<std::size_t>& widths, bool cut) const {
  std::string line;
  std::size_t pending = m_indent;  // blanks before the next cell that is not empty
  for (std::size_t i = 0; i < row.cells.size(); ++i) {
    const std::string cell = cut ? CutToWidth(row.cells[i], widths[i]) : row.cells[i];
    const std::size_t width = DisplayWidth(cell);
    if (!cell.empty()) {
      const bool isDimmed = row.lastCell == CellStyle::Dimmed && i + 1 == row.cells.size();
      line.append(pending, ' ').append(isDimmed ? Dimmed(cell) : cell);
      pending = 0;
    }
    pending += (widths[i] > width ? widths[i] - width : 0) + kGap;
  }
  cli::Write(line += '\n');
}

}  // namespace cli

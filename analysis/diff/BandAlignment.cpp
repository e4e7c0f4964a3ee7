#include "diff/BandAlignment.h"

#include <algorithm>

namespace vifanalysis {

namespace {

enum class Step : std::uint8_t { Pair, SkipRow, SkipColumn };

/// The best alignment of each beginning of the one list with each beginning of the other, row by row. There are at
/// least as many rows as columns, so that the bands of two rows overlap.
class CTable {
 public:
  CTable(std::size_t rows, std::size_t columns, bool isExact)
      : m_rows(rows), m_columns(columns), m_width(isExact ? columns : std::min(columns, kHalfBand)) {}

  void Fill(const PairScore& score) {
    m_steps.reserve(m_rows + 1);
    std::vector<std::uint64_t> above;
    for (std::size_t row = 0; row <= m_rows; ++row) {
      std::vector<std::uint64_t> best;
      std::vector<Step>& steps = m_steps.emplace_back();
      for (std::size_t column = First(row); column <= Last(row); ++column) {
        FillCell(row, column, score, above, best, steps);
      }
      above = std::move(best);
    }
  }

  std::vector<IndexPair> Pairs() const {
    std::vector<IndexPair> pairs;
    std::size_t row = m_rows;
    std::size_t column = m_columns;
    while (row != 0 || column != 0) {
      const Step step = m_steps[row][column - First(row)];
      if (step == Step::Pair) pairs.emplace_back(row - 1, column - 1);
      if (step != Step::SkipColumn) --row;
      if (step != Step::SkipRow) --column;
    }
    std::reverse(pairs.begin(), pairs.end());
    return pairs;
  }

 private:
  static constexpr std::size_t kHalfBand = 16;

  std::size_t Centre(std::size_t row) const { return m_rows == 0 ? 0 : row * m_columns / m_rows; }
  std::size_t First(std::size_t row) const { return Centre(row) - std::min(Centre(row), m_width); }
  std::size_t Last(std::size_t row) const { return std::min(Centre(row) + m_width, m_columns); }
  bool IsInBand(std::size_t row, std::size_t column) const { return First(row) <= column && column <= Last(row); }

  void FillCell(std::size_t row, std::size_t column, const PairScore& score, const std::vector<std::uint64_t>& above,
                std::vector<std::uint64_t>& best, std::vector<Step>& steps) const {
    std::uint64_t most = 0;
    Step step = column != First(row) ? Step::SkipColumn : Step::SkipRow;
    if (column != First(row)) most = best.back();
    if (row != 0 && IsInBand(row - 1, column)) {
      const std::uint64_t skipped = above[column - First(row - 1)];
      if (skipped >= most) {
        most = skipped;
        step = Step::SkipRow;
      }
    }
    if (row != 0 && column != 0 && IsInBand(row - 1, column - 1)) {
      const std::uint64_t worth = score(row - 1, column - 1);
      const std::uint64_t paired = above[column - 1 - First(row - 1)] + worth;
      if (worth != 0 && paired >= most) {
        most = paired;
        step = Step::Pair;
      }
    }
    best.push_back(most);
    steps.push_back(step);
  }

  std::size_t m_rows;
  std::size_t m_columns;
  std::size_t m_width;
  std::vector<std::vector<Step>> m_steps;
};

}  // namespace

std::vector<IndexPair> AlignInBand(std::size_t sizeA, std::size_t sizeB, bool isExact, const PairScore& score) {
  const bool isSwapped = sizeA < sizeB;
  CTable table(std::max(sizeA, sizeB), std::min(sizeA, sizeB), isExact);
  table.Fill([&](std::size_t row, std::size_t column) { return isSwapped ? score(column, row) : score(row, column); });
  std::vector<IndexPair> pairs = table.Pairs();
  if (isSwapped) {
    for (auto& [a, b] : pairs) std::swap(a, b);
  }
  return pairs;
}

}  // namespace vifanalysis

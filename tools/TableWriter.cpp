#include "Output.h"
#include "Text.h"
#include "Writers.h"

#include <algorithm>
#include <array>
#include <numeric>
#include <optional>

namespace tool {

namespace {

constexpr size_t kColumns = 4;
using Row = std::array<std::string, kColumns>;
using Widths = std::array<size_t, kColumns>;

constexpr std::string_view kGap = "  ";

/// Longer cells are not cut in a pipe, but they do not widen the column for all the others either.
constexpr size_t kWidestColumn = 60;
constexpr size_t kNarrowestColumn = 6;

std::string LocationText(const CVIFField& field) {
  std::string text;
  for (const VifIndex& slot : field.Indexes()) {
    if (!IsUsed(slot)) continue;
    if (!text.empty()) text += " \u00B7 ";
    text += LocationName(slot) + ' ' + (HasNumber(slot) ? std::to_string(std::get<1>(slot)) : "?");
  }
  return text;
}

Row MakeRow(const CVIFField& field) {
  std::string value = Printable(field.Value());
  if (!field.IsNumeric()) value = '"' + value + '"';
  return {LocationText(field), Printable(field.Name()), value, Printable(field.Description())};
}

void Widen(Widths& widths, const Row& row) {
  for (size_t i = 0; i < kColumns; ++i) {
    widths[i] = std::max(widths[i], std::min(DisplayWidth(row[i]), kWidestColumn));
  }
}

/// Takes from the widest columns until the line fits, or all are as narrow as can be read.
void Fit(Widths& widths, size_t lineWidth) {
  const auto total = [&] { return std::accumulate(widths.begin(), widths.end(), kGap.size() * (kColumns - 1)); };
  while (total() > lineWidth) {
    const auto widest = std::max_element(widths.begin(), widths.end());
    if (*widest <= kNarrowestColumn) return;
    --*widest;
  }
}

void WriteRow(const Row& row, const Widths& widths, bool cut) {
  std::string line;
  size_t pending = 0;  // blanks owed before the next cell that is not empty
  for (size_t i = 0; i < kColumns; ++i) {
    const std::string cell = cut ? CutToWidth(row[i], widths[i]) : row[i];
    const size_t width = DisplayWidth(cell);
    if (!cell.empty()) {
      line.append(pending, ' ').append(cell);
      pending = 0;
    }
    pending += (widths[i] > width ? widths[i] - width : 0) + kGap.size();
  }
  Write(line += '\n');
}

}  // namespace

void WriteTable(const CVendorInfoFile& vif) {
  const Row header = {"LOCATION", "NAME", "VALUE", "DESCRIPTION"};
  const VifFieldList fields = vif.GetFields();
  Widths widths = {};
  Widen(widths, header);
  for (const CVIFField& field : *fields) Widen(widths, MakeRow(field));

  const std::optional<size_t> lineWidth = TerminalWidth();
  if (lineWidth) Fit(widths, *lineWidth);
  WriteRow(header, widths, lineWidth.has_value());
  for (const CVIFField& field : *fields) WriteRow(MakeRow(field), widths, lineWidth.has_value());
}

}  // namespace tool

// Links to the rows of the list of all fields.
#pragma once

#include "report/Markup.h"
#include "report/ReportedVif.h"

#include <analysis/Differences.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// The ID of the row of a field by its position: in the only file, or in the later one of two.
std::string FieldId(std::size_t position);

/// The ID of the row of a field that only the earlier file has.
std::string RemovedFieldId(std::size_t position);

/// The rows of the fields of one file. In a comparison, a field that both files have is in one row.
class CFieldRows {
 public:
  /// Those of the only file, or of the later one of two.
  CFieldRows() = default;

  /// Those of the earlier one.
  CFieldRows(const CReportedVif& before, const CReportedVif& after, const Differences& differences);

  /// Writes a text that is a link to the row of the field at that position.
  void WriteLink(CMarkup& page, std::size_t position, std::string_view text) const;

 private:
  std::string IdOf(std::size_t position) const;

  std::vector<std::string> m_ids;  // by position; empty where the position itself is the row's number
};

}  // namespace vifanalysis

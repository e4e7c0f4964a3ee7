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
  /// Those of the only file.
  explicit CFieldRows(const CReportedVif& vif);

  /// Those of the later of two files.
  static CFieldRows OfLater(const CReportedVif& after, const Differences& differences);

  /// Those of the earlier one.
  static CFieldRows OfEarlier(const CReportedVif& before, const CReportedVif& after, const Differences& differences);

  /// Whether the other file does not have the field, or not with that value.
  bool IsDifferent(std::size_t position) const { return m_isDifferent[position]; }

  /// Whether that is so for any of a group's own fields.
  bool HasDifferent(const CReportedVif& vif, const CGroupView& group) const;

  /// Writes a text that is a link to the row of the field at that position; only the text when there is no such field.
  void WriteLink(CMarkup& page, std::size_t position, std::string_view text) const;

 private:
  std::vector<std::string> m_ids;  // by position
  std::vector<bool> m_isDifferent;
};

}  // namespace vifanalysis

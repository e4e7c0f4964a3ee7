// A file as a report shows it.
#pragma once

#include "diff/NormalFile.h"

#include <analysis/Report.h>

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// A value as a report shows it.
struct ShownValue {
  std::string value;         ///< as the file writes it
  std::string description;   ///< what the file says about it, if that is more than the value
  std::string meaning;       ///< what the format says about it, if that is more than both
  bool isUncertain = false;  ///< whether `meaning` has low confidence
};

/// A file with its fields by group. It borrows the file.
class CReportedVif {
 public:
  explicit CReportedVif(const ReportedFile& file);

  const ReportedFile& File() const { return m_file; }
  const CVifView& View() const { return m_normal.View(); }
  Edition GetEdition() const { return m_normal.GetEdition(); }

  /// The field as the file declares it.
  const CVIFField& Declared(const FoundField& found) const { return m_normal.Declared(found); }

  /// Where the field is in the file.
  std::size_t PositionOf(const FoundField& found) const { return m_normal.PositionOf(found); }

  /// The value of a field of a group.
  ShownValue Shown(const FoundField& found, const CGroupView& group) const;

  /// What a field of a group says in a few words: its description, its meaning, or else its value. Empty when the group
  /// has no such field.
  std::string Says(const CGroupView& group, std::string_view name) const;

  /// The same for a field about the file as a whole.
  std::string HeaderSays(std::string_view name) const;

  /// The group's own fields in the order of the file.
  std::vector<const FoundField*> FieldsOf(const CGroupView& group) const;

 private:
  std::string SaysField(const FoundField& found, const CGroupView& group) const;

  const ReportedFile& m_file;
  CNormalFile m_normal;
};

}  // namespace vifanalysis

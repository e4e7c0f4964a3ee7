// Rows and groups of the list of all fields.
#pragma once

#include "report/Markup.h"
#include "report/ReportedVif.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// The value of a field with what it stands for, as the content of a cell.
void WriteValue(CMarkup& page, const ShownValue& shown);

/// Names of fields, each with what is known about the field on demand. A field is explained where it first occurs;
/// after that, there is a link to the explanation.
class CFieldNames {
 public:
  void Write(CMarkup& page, std::string_view name);

 private:
  std::set<std::string, std::less<>> m_explained;
};

/// What a group is called above its fields.
std::string GroupTitle(const GroupPlace& place);

/// Begins a table of fields.
void BeginTable(CMarkup& page, const std::string& caption, const std::vector<std::string_view>& headings);

/// Ends it.
void EndTable(CMarkup& page);

/// The box for the filter, which a script shows.
void WriteFilter(CMarkup& page);

}  // namespace vifanalysis

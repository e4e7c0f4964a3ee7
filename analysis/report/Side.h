// What a report shows next to each other: one file, or the same thing in two.
#pragma once

#include "report/Markup.h"
#include "report/ReportedVif.h"

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// A group in one of the files of a report.
struct Side {
  const CReportedVif* vif;  ///< never null
  const CGroupView* group;  ///< null when this file does not have it
  std::string_view label;   ///< what distinguishes the file from the other; empty when there is only one
  bool hasLinks;            ///< whether the fields of this file are in the page by their positions
};

/// One or two, the earlier file first. At least one has the group.
using Sides = std::vector<Side>;

/// A component in one of the files.
struct PortSide : Side {
  const CComponentView* component;  ///< the group, as a component
};

using PortSides = std::vector<PortSide>;

/// The ID of a field's row.
std::string FieldId(std::size_t position);

/// Where a link to a field's row leads.
std::string FieldLink(std::size_t position);

/// A field and what a table of facts calls it.
struct Fact {
  std::string_view name;
  std::string_view label;
};

/// What the sides say, one fact a row. Facts that no side has are left out.
/// \return whether there was any
bool WriteFacts(CMarkup& page, const std::string& caption, const Sides& sides, std::vector<Fact> facts);

/// The name of a field as words: "Num_Lane_Adapters" as "Num Lane Adapters", without what its group says already.
std::string FieldLabel(std::string_view name);

/// The most groups of one kind that are shown outside the list of fields.
inline constexpr std::size_t kMostShown = 64;

/// Says how many groups are not shown, if any.
void WriteOthers(CMarkup& page, std::size_t count, const std::string& noun);

}  // namespace vifanalysis

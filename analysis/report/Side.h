// What a report shows next to each other: one file, or the same thing in two.
#pragma once

#include "report/FieldLinks.h"
#include "report/Markup.h"
#include "report/ReportedVif.h"

#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// One of the files of a report.
struct ShownFile {
  const CReportedVif* vif;  ///< never null
  std::string_view label;   ///< what distinguishes the file from the other; empty when there is only one
  const CFieldRows* rows;   ///< the rows of its fields; never null
};

/// A group in one of the files.
struct Side : ShownFile {
  const CGroupView* group;  ///< null when this file does not have it
};

/// One or two, the earlier file first. At least one has the group.
using Sides = std::vector<Side>;

/// A component in one of the files.
struct PortSide : Side {
  const CComponentView* component;  ///< the group, as a component
};

using PortSides = std::vector<PortSide>;

/// Writes a text that is a link to the row of a field.
void WriteLink(CMarkup& page, const Side& side, const FoundField& found, std::string_view text);

/// A field and what a table of facts calls it.
struct Fact {
  std::string_view name;
  std::string_view label;
};

/// What the sides say, one fact a row. Facts that no side has are left out.
/// \return whether there was any
bool WriteFacts(CMarkup& page, const std::string& caption, const Sides& sides, std::span<const Fact> facts);

/// The name of a field as words: "Num_Lane_Adapters" as "Num Lane Adapters", without what its group says already.
std::string FieldLabel(std::string_view name);

/// The most groups of one kind that are shown outside the list of fields.
inline constexpr std::size_t kMostShown = 64;

/// Says how many groups are not shown, if any.
void WriteOthers(CMarkup& page, std::size_t count, const std::string& noun);

}  // namespace vifanalysis

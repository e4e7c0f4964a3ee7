// Which groups of two lists correspond to each other.
#pragma once

#include "rules/GroupView.h"

#include <span>
#include <vector>

namespace vifanalysis {

/// Two groups that correspond, or one that has no counterpart.
struct GroupPair {
  const CGroupView* before = nullptr;  ///< null when only the second list has the group
  const CGroupView* after = nullptr;   ///< null when only the first list has it
  bool isMoved = false;                ///< it has passed others of its kind
};

/// Aligns groups of one kind by what they declare, so that as much as possible stays equal. The order is that of the
/// second list, with groups of the first one where they would stand. Each group is in one pair.
///
/// Lists of up to a few dozen groups are aligned exactly. In longer ones, equal groups are found first, and what is
/// between them is aligned within a band around its diagonal, so that the time grows linearly with the lists. Swapping
/// the lists swaps the sides of the pairs.
std::vector<GroupPair> AlignGroups(std::span<const CGroupView> before, std::span<const CGroupView> after);

}  // namespace vifanalysis

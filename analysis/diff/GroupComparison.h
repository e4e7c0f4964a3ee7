// Compares two groups with all that is in them.
#pragma once

#include "diff/NormalFile.h"
#include "rules/GroupView.h"

#include <analysis/Differences.h>

#include <string_view>

namespace vifanalysis {

/// A file and one of its groups.
struct Side {
  const CNormalFile& file;
  const CGroupView& group;
};

/// Whether to leave fields of that name out.
using IsLeftOut = bool (*)(std::string_view name);

/// How the groups differ. They correspond to each other, whatever their numbers.
Differences CompareGroups(const Side& before, const Side& after, const CompareOptions& options,
                          IsLeftOut isLeftOut = nullptr);

}  // namespace vifanalysis

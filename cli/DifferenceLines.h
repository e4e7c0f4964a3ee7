// Differences in words.
#pragma once

#include <analysis/Differences.h>

#include <string>
#include <vector>

namespace cli {

/// One line about a place.
struct DifferenceLine {
  vifanalysis::GroupPlace place;
  std::string text;
};

/// A line for each difference, by place. Groups that were renumbered alike share a line, and the fields of a group that
/// was added or removed have none of their own.
std::vector<DifferenceLine> DifferenceLines(const vifanalysis::Differences& differences, bool withDescriptions);

/// Such as "3 differences: 2 changed, 1 added". A whole group counts once, and a new number only where nothing else
/// differs.
std::string DifferenceSummary(const vifanalysis::Differences& differences);

}  // namespace cli

// Anchors for aligning long lists: what occurs once in both.
#pragma once

#include <cstddef>
#include <cstdint>
#include <utility>
#include <vector>

namespace vifanalysis {

using IndexPair = std::pair<std::size_t, std::size_t>;

/// The indexes of each key that is once in both lists, in the order of the first.
std::vector<IndexPair> FindUniqueKeys(const std::vector<std::uint64_t>& a, const std::vector<std::uint64_t>& b);

/// The longest selection of the pairs, which are in the order of their first indexes, whose second indexes rise, too.
std::vector<IndexPair> LongestRisingRun(const std::vector<IndexPair>& pairs);

}  // namespace vifanalysis

#include "diff/UniqueKeys.h"

#include <algorithm>

namespace vifanalysis {

namespace {

using KeyedIndexes = std::vector<std::pair<std::uint64_t, std::size_t>>;

/// The keys that occur once, in their order, with their indexes.
KeyedIndexes OccurringOnce(const std::vector<std::uint64_t>& keys) {
  KeyedIndexes sorted;
  sorted.reserve(keys.size());
  for (std::size_t i = 0; i < keys.size(); ++i) sorted.emplace_back(keys[i], i);
  std::sort(sorted.begin(), sorted.end());
  KeyedIndexes once;
  for (std::size_t i = 0; i < sorted.size(); ++i) {
    const bool isLikePrevious = i > 0 && sorted[i - 1].first == sorted[i].first;
    const bool isLikeNext = i + 1 < sorted.size() && sorted[i + 1].first == sorted[i].first;
    if (!isLikePrevious && !isLikeNext) once.push_back(sorted[i]);
  }
  return once;
}

}  // namespace

std::vector<IndexPair> FindUniqueKeys(const std::vector<std::uint64_t>& a, const std::vector<std::uint64_t>& b) {
  const KeyedIndexes ofB = OccurringOnce(b);
  std::vector<IndexPair> pairs;
  auto next = ofB.begin();
  for (const auto& [key, index] : OccurringOnce(a)) {
    while (next != ofB.end() && next->first < key) ++next;
    if (next == ofB.end()) break;
    if (next->first == key) pairs.emplace_back(index, next->second);
  }
  std::sort(pairs.begin(), pairs.end());
  return pairs;
}

std::vector<IndexPair> LongestRisingRun(const std::vector<IndexPair>& pairs) {
  constexpr std::size_t none = SIZE_MAX;
  std::vector<std::size_t> ends;  // for each length, the pair that ends the run of it with the lowest second index
  std::vector<std::size_t> previous(pairs.size(), none);
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    const auto place = std::lower_bound(ends.begin(), ends.end(), pairs[i].second,
                                        [&](std::size_t end, std::size_t index) { return pairs[end].second < index; });
    if (place != ends.begin()) previous[i] = *(place - 1);
    if (place == ends.end()) {
      ends.push_back(i);
    } else {
      *place = i;
    }
  }
  std::vector<IndexPair> run;
  for (std::size_t i = ends.empty() ? none : ends.back(); i != none; i = previous[i]) run.push_back(pairs[i]);
  std::reverse(run.begin(), run.end());
  return run;
}

}  // namespace vifanalysis

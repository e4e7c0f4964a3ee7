// What a group declares, in a form that is quick to compare.
#pragma once

#include "rules/GroupView.h"

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <utility>
#include <vector>

namespace vifanalysis {

/// Items with the sum of their weights, in the order of the items. An item is a hash, the same on every system; where
/// two texts have the same one, groups may be aligned badly, but no difference is lost.
class CWeightedItems {
 public:
  void Add(std::uint64_t item, std::uint64_t weight);

  /// Sorts the items and merges equal ones; to be called once, after the last `Add`.
  void Finish();

  std::uint64_t Total() const { return m_total; }

  /// The weight that both have in common. Takes time that grows with the smaller of the two.
  std::uint64_t Common(const CWeightedItems& other) const;

 private:
  std::vector<std::pair<std::uint64_t, std::uint64_t>> m_items;
  std::uint64_t m_total = 0;
};

/// The content of one group with all groups in it. The numbers of groups do not count.
struct DiffContent {
  explicit DiffContent(const CGroupView& group);

  const CGroupView* group;
  std::uint64_t hash = 0;      ///< of all fields and inner groups
  std::uint64_t identity = 0;  ///< of what tells it from others of its kind, such as the voltage of a PDO
  CWeightedItems values;       ///< fields with their values, by how much they tell the group from others
  CWeightedItems names;        ///< fields without their values
};

}  // namespace vifanalysis

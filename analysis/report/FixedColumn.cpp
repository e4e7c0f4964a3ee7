#include "report/FixedColumn.h"

#include "power/Units.h"

#include <algorithm>
#include <functional>
#include <map>
#include <set>

namespace vifanalysis {

std::uint64_t CFixedColumn::GreatestCurrent() const {
  std::uint64_t greatest = 0;
  for (const LayeredShape* one : m_shapes) greatest = std::max(greatest, one->shape.current);
  return greatest;
}

InLayers CFixedColumn::Layers() const {
  InLayers layers = m_shapes.front()->layers;
  for (const LayeredShape* one : m_shapes) {
    if (one->layers != layers) layers = InLayers::Both;
  }
  return layers;
}

/// The greatest first.
std::string CFixedColumn::CurrentsIn(InLayers layer) const {
  std::set<std::uint64_t, std::greater<>> currents;
  for (const LayeredShape* one : m_shapes) {
    if (IsIn(one->layers, layer)) currents.insert(one->shape.current);
  }
  constexpr int most = 3;
  int count = 0;
  std::string text;
  for (const std::uint64_t current : currents) {
    if (count++ == most) return text.append(", …");
    if (!text.empty()) text += ", ";
    text += Amperes(current);
  }
  return text;
}

std::string CFixedColumn::CurrentsText() const {
  std::string first = CurrentsIn(InLayers::First);
  std::string second = CurrentsIn(InLayers::Second);
  if (second.empty() || first == second) return first;
  return first.empty() ? second : first + " → " + second;
}

std::vector<CFixedColumn> FixedColumns(const PictureContent& content) {
  std::map<std::uint64_t, CFixedColumn> columns;
  for (const LayeredShape& one : content.shapes) {
    if (!one.shape.IsRange()) columns[one.shape.maxVoltage].Add(one);
  }
  std::vector<CFixedColumn> list;
  list.reserve(columns.size());
  for (auto& column : columns) list.push_back(std::move(column.second));
  return list;
}

}  // namespace vifanalysis

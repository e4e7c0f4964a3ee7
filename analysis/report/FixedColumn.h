// The fixed supplies at one voltage.
#pragma once

#include "report/PictureContent.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vifanalysis {

/// Borrows from the content of a picture.
class CFixedColumn {
 public:
  void Add(const LayeredShape& shape) { m_shapes.push_back(&shape); }

  /// There is at least one shape.
  std::uint64_t Voltage() const { return m_shapes.front()->shape.maxVoltage; }
  std::uint64_t FirstNumber() const { return m_shapes.front()->number; }
  std::uint64_t GreatestCurrent() const;
  InLayers Layers() const;

  /// "3 A", or "3 A → 3.25 A" where the layers differ.
  std::string CurrentsText() const;

 private:
  std::string CurrentsIn(InLayers layer) const;

  std::vector<const LayeredShape*> m_shapes;
};

/// Those of a picture, by voltage.
std::vector<CFixedColumn> FixedColumns(const PictureContent& content);

}  // namespace vifanalysis

// Finds places for the labels of a picture.
#pragma once

#include "report/PictureScale.h"

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

namespace vifanalysis {

/// A part of a picture.
struct Box {
  Tenths left;
  Tenths top;
  Tenths right;
  Tenths bottom;

  bool Overlaps(const Box& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
  bool Contains(const Box& other) const {
    return left <= other.left && other.right <= right && top <= other.top && other.bottom <= bottom;
  }
};

/// Places labels so that they overlap no other label, and as few lines as possible.
class CLabelPlacer {
 public:
  /// \param bounds labels stay inside
  explicit CLabelPlacer(const Box& bounds) : m_bounds(bounds) {}

  /// A line or point that had better be left visible.
  void Avoid(const Box& box) { m_avoided.push_back(box); }

  /// The candidate that hides the least, the first of several; no other label is then placed there. Nothing when there
  /// is no room at any.
  /// \param mostHidden the lines that it may hide
  std::optional<Box> Place(std::span<const Box> candidates, std::ptrdiff_t mostHidden);

 private:
  bool IsFree(const Box& box) const;

  Box m_bounds;
  std::vector<Box> m_avoided;
  std::vector<Box> m_taken;
};

}  // namespace vifanalysis

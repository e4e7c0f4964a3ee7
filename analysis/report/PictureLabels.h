// The labels in the plane of a picture.
#pragma once

#include "report/FixedColumn.h"
#include "report/LabelPlacer.h"
#include "report/PictureContent.h"
#include "report/PicturePlane.h"
#include "report/SvgWriter.h"

#include <cstdint>
#include <vector>

namespace vifanalysis {

/// Writes labels where they overlap neither each other nor, if there is a better place, the lines of the plane. It has
/// to know the lines first.
class CPictureLabels {
 public:
  /// \param svg,content,plane borrowed
  CPictureLabels(CSvgWriter& svg, const PictureContent& content, const CPicturePlane& plane);

  /// A line that had better be left visible.
  void Avoid(SvgPoint from, SvgPoint to);
  void Avoid(const std::vector<SvgPoint>& line);

  /// Voltage and current over each column, or a number where there is no room.
  void LabelColumns();

  /// \param curve the points of the rating's curve
  void LabelRating(const LayeredRating& rating, const std::vector<SvgPoint>& curve);

  /// A number at the middle of the range.
  void LabelRange(const LayeredShape& range);

 private:
  void LabelColumn(const CFixedColumn& column);
  void PlaceNumber(std::uint64_t number, SvgPoint point);

  CSvgWriter& m_svg;
  const PictureContent& m_content;
  const CPicturePlane& m_plane;
  CLabelPlacer m_placer;
};

}  // namespace vifanalysis

// The ranges of voltage above the plane of a picture, each a line with its text.
#pragma once

#include "report/PictureContent.h"
#include "report/PicturePlane.h"

#include <cstddef>
#include <string>
#include <vector>

namespace vifanalysis {

/// A line from the lowest to the highest voltage of a range, in the row of that number.
struct RangeLane {
  Supply supply = Supply::Unknown;
  InLayers layers = InLayers::First;
  std::string text;
  std::uint64_t minVoltage = 0;
  std::uint64_t maxVoltage = 0;
  Tenths textLeft = 0;  ///< the text is on the line, or beside it where that is too short
  Tenths textRight = 0;
  std::size_t row = 0;
};

struct RangeLanes {
  std::vector<RangeLane> lanes;
  std::vector<const LayeredShape*> others;  ///< ranges for which there are no rows left
  std::size_t rows = 0;
};

/// \param plane how voltages are scaled; its height does not matter
RangeLanes LanesOf(const PictureContent& content, const CPicturePlane& plane);

}  // namespace vifanalysis

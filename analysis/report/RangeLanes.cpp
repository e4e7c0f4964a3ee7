#include "report/RangeLanes.h"

#include <algorithm>

namespace vifanalysis {

namespace {

constexpr std::size_t kMostRows = 12;
constexpr Tenths kGap = 80;

void PlaceText(RangeLane& lane, const CPicturePlane& plane) {
  const Tenths left = plane.X(lane.minVoltage);
  const Tenths right = plane.X(lane.maxVoltage);
  const Tenths width = TextWidth(lane.text, kFontSize);
  if (width + 4 * kGap <= right - left) {
    lane.textLeft = (left + right - width) / 2;
  } else if (right + kGap + width <= kPictureWidth - kMargin) {
    lane.textLeft = right + kGap;
  } else {
    lane.textLeft = std::max(kMargin, left - kGap - width);
  }
  lane.textRight = lane.textLeft + width;
}

/// What a lane takes up of its row.
Box ExtentOf(const RangeLane& lane, const CPicturePlane& plane) {
  const auto row = static_cast<Tenths>(lane.row);
  return {std::min(lane.textLeft, plane.X(lane.minVoltage)) - kGap, row,
          std::max(lane.textRight, plane.X(lane.maxVoltage)) + kGap, row + 1};
}

bool IsFree(const RangeLane& lane, const std::vector<RangeLane>& others, const CPicturePlane& plane) {
  const Box extent = ExtentOf(lane, plane);
  return std::none_of(others.begin(), others.end(),
                      [&](const RangeLane& other) { return ExtentOf(other, plane).Overlaps(extent); });
}

}  // namespace

RangeLanes LanesOf(const PictureContent& content, const CPicturePlane& plane) {
  RangeLanes found;
  for (const LayeredShape& one : content.shapes) {
    if (!one.shape.IsRange()) continue;
    const std::string text = TextOf(one.shape);
    const auto same =
        std::find_if(found.lanes.begin(), found.lanes.end(), [&](const RangeLane& lane) { return lane.text == text; });
    if (same != found.lanes.end()) {
      if (same->layers != one.layers) same->layers = InLayers::Both;
      continue;
    }
    RangeLane lane{one.shape.supply, one.layers, text, one.shape.minVoltage, one.shape.maxVoltage};
    PlaceText(lane, plane);
    while (lane.row < kMostRows && !IsFree(lane, found.lanes, plane)) ++lane.row;
    if (lane.row == kMostRows) {
      found.others.push_back(&one);
      continue;
    }
    found.rows = std::max(found.rows, lane.row + 1);
    found.lanes.push_back(std::move(lane));
  }
  return found;
}

}  // namespace vifanalysis

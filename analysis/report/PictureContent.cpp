#include "report/PictureContent.h"

#include <algorithm>
#include <cassert>

namespace vifanalysis {

namespace {

/// Adds what a layer has, or notes that it is in both.
template <typename T, typename IsSame>
void Add(std::vector<T>& list, const T& item, const IsSame& isSame) {
  const auto found = std::find_if(list.begin(), list.end(), isSame);
  if (found == list.end()) {
    list.push_back(item);
  } else {
    found->layers = InLayers::Both;
  }
}

void AddLayer(PictureContent& content, const PowerLayer& layer, InLayers where) {
  const PowerShapes found = ShapesOf(layer.pdos, layer.rating);
  for (const NumberedShape& one : found.shapes) {
    Add(content.shapes, {one.shape, one.number, where},
        [&](const LayeredShape& other) { return other.shape == one.shape; });
  }
  if (const auto rating = UsableRating(layer.rating)) {
    Add(content.ratings, {*rating, where}, [&](const LayeredRating& other) { return other.rating == *rating; });
  }
  content.count.drawn += found.drawn;
  content.count.unusable += found.unusable;
  content.count.surplus += found.surplus;
}

/// The greatest current of a shape that the axis is to show. That of a battery has no limit where its voltage is low.
std::uint64_t ShownCurrent(const PowerShape& shape) {
  constexpr std::uint64_t most = 6000;
  const std::uint64_t current = CurrentAt(shape, shape.minVoltage);
  return shape.supply == Supply::Battery ? std::min(current, most) : current;
}

}  // namespace

PictureContent ContentOf(const std::vector<PowerLayer>& layers) {
  assert(layers.size() <= 2);
  PictureContent content;
  content.isCompared = layers.size() == 2;
  for (const PowerLayer& layer : layers) {
    AddLayer(content, layer, &layer == &layers.front() ? InLayers::First : InLayers::Second);
  }
  std::uint64_t voltage = 0;
  std::uint64_t current = 0;
  for (const LayeredShape& one : content.shapes) {
    voltage = std::max(voltage, one.shape.maxVoltage);
    current = std::max(current, ShownCurrent(one.shape));
  }
  content.voltages = VoltageAxis(voltage);
  content.currents = CurrentAxis(current);
  return content;
}

}  // namespace vifanalysis

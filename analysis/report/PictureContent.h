// What a picture of one or two layers shows.
#pragma once

#include "report/PictureScale.h"
#include "report/PowerPicture.h"
#include "report/PowerShapes.h"

#include <cstdint>
#include <string>
#include <vector>

namespace vifanalysis {

/// In which of two layers something is.
enum class InLayers : std::uint8_t { First = 1, Second = 2, Both = 3 };

constexpr bool IsIn(InLayers layers, InLayers layer) {
  return (static_cast<unsigned>(layers) & static_cast<unsigned>(layer)) != 0;
}

struct LayeredShape {
  PowerShape shape;
  std::uint64_t number = 0;  ///< of the first PDO that has it
  InLayers layers = InLayers::First;
};

struct LayeredRating {
  std::uint64_t rating = 0;  ///< in mW
  InLayers layers = InLayers::First;
};

/// Shapes and ratings of all layers, each once, and the axes on which they all fit.
struct PictureContent {
  std::vector<LayeredShape> shapes;
  std::vector<LayeredRating> ratings;
  PicturedPdos count;
  bool isCompared = false;  ///< whether there are two layers
  Axis voltages{};
  Axis currents{};
};

PictureContent ContentOf(const std::vector<PowerLayer>& layers);

}  // namespace vifanalysis

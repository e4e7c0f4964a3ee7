// Lengths, axes and widths of text in a picture, in whole numbers, so that they are the same on every system.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace vifanalysis {

/// A length in a picture in tenths of its unit, which is about a pixel.
using Tenths = std::int64_t;

/// "12" or "12.5". The length is not negative.
std::string LengthText(Tenths length);

/// What an axis shows: from 0 to its limit, with a tick at each step. Neither is 0.
struct Axis {
  std::uint64_t limit;
  std::uint64_t step;
};

/// In mV, with some room above the highest.
Axis VoltageAxis(std::uint64_t highest);

/// In mA, with room for labels above the greatest.
Axis CurrentAxis(std::uint64_t greatest);

/// About how wide the text, which is valid UTF-8, is in a wide font of that size: rather too much than too little, and
/// the same in any locale.
Tenths TextWidth(std::string_view text, Tenths fontSize);

/// The text, cut and with an ellipsis if it is wider than the length.
std::string CutToLength(std::string_view text, Tenths fontSize, Tenths length);

}  // namespace vifanalysis

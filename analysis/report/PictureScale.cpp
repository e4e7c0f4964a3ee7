#include "report/PictureScale.h"

#include <analysis/Text.h>

#include <algorithm>
#include <span>

namespace vifanalysis {

namespace {

/// The axis with the smallest of the steps that is not too many, up to a multiple of the step.
Axis AxisTo(std::uint64_t least, std::span<const std::uint64_t> steps, std::uint64_t mostTicks) {
  const auto isEnough = [&](std::uint64_t step) { return least <= step * mostTicks; };
  const auto found = std::find_if(steps.begin(), steps.end() - 1, isEnough);
  return {std::max<std::uint64_t>(1, (least + *found - 1) / *found) * *found, *found};
}

/// The width of an ASCII character in hundredths of the size of the font.
Tenths CharacterWidth(char c) {
  if (c == ' ' || c == '.' || c == ',' || c == ':') return 34;
  if (c == 'W' || c == 'M' || c == 'm' || c == 'w') return 100;
  if (c >= 'A' && c <= 'Z') return 72;
  return 64;
}

}  // namespace

std::string LengthText(Tenths length) {
  const Tenths magnitude = length < 0 ? -length : length;
  std::string text = length < 0 ? "-" : "";
  text += std::to_string(magnitude / 10);
  if (magnitude % 10 != 0) text.append(".").append(std::to_string(magnitude % 10));
  return text;
}

Axis VoltageAxis(std::uint64_t highest) {
  constexpr std::uint64_t steps[] = {1000, 2000, 5000, 10'000, 20'000};
  return AxisTo(highest + highest / 32, steps, 10);
}

Axis CurrentAxis(std::uint64_t greatest) {
  constexpr std::uint64_t steps[] = {100, 200, 500, 1000, 2000, 5000};
  return AxisTo(greatest + greatest / 6, steps, 8);
}

Tenths TextWidth(std::string_view text, Tenths fontSize) {
  Tenths width = 0;
  std::string others;
  for (const char c : text) {
    if (static_cast<unsigned char>(c) < 0x80) {
      width += CharacterWidth(c);
    } else {
      others += c;
    }
  }
  constexpr Tenths column = 84;
  return (width + static_cast<Tenths>(DisplayWidth(others)) * column) * fontSize / 100;
}

}  // namespace vifanalysis

#include "report/PictureScale.h"

#include <algorithm>
#include <cstddef>
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
Tenths AsciiWidth(char c) {
  if (c == ' ' || c == '.' || c == ',' || c == ':') return 34;
  if (c == 'W' || c == 'M' || c == 'm' || c == 'w') return 100;
  if (c >= 'A' && c <= 'Z') return 72;
  return 64;
}

/// The length in bytes of the character that begins with this byte of UTF-8.
std::size_t LengthFrom(char first) {
  const auto byte = static_cast<unsigned char>(first);
  if (byte < 0xC0) return 1;
  if (byte < 0xE0) return 2;
  return byte < 0xF0 ? 3 : 4;
}

/// The same for a character in UTF-8. Letters and arrows are narrower than ideographs.
Tenths CharacterWidth(std::string_view character) {
  constexpr char firstOfSigns = '\xE2';  // of U+2000 to U+2FFF
  if (character.size() == 1) return AsciiWidth(character.front());
  if (character.size() == 2) return 72;
  return character.front() == firstOfSigns ? 84 : 105;
}

}  // namespace

std::string LengthText(Tenths length) {
  std::string text = std::to_string(length / 10);
  if (length % 10 != 0) text.append(".").append(std::to_string(length % 10));
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
  for (std::size_t at = 0; at < text.size(); at += LengthFrom(text[at])) {
    width += CharacterWidth(text.substr(at, LengthFrom(text[at])));
  }
  return width * fontSize / 100;
}

std::string CutToLength(std::string_view text, Tenths fontSize, Tenths length) {
  constexpr std::string_view ellipsis = "…";
  const Tenths most = length * 100 / fontSize;
  Tenths width = 0;
  std::size_t fits = 0;  // the bytes that fit before the ellipsis
  for (std::size_t at = 0; at < text.size(); at += LengthFrom(text[at])) {
    if (width + CharacterWidth(ellipsis) <= most) fits = at;
    width += CharacterWidth(text.substr(at, LengthFrom(text[at])));
    if (width > most) return std::string(text.substr(0, fits)).append(ellipsis);
  }
  return std::string(text);
}

}  // namespace vifanalysis

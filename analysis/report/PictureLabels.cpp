#include "report/PictureLabels.h"

#include "power/Units.h"
#include "report/PictureClasses.h"

#include <algorithm>
#include <cstddef>
#include <optional>
#include <string>

namespace vifanalysis {

namespace {

constexpr Tenths kDistance = 75;  // from the middle of a point to a label above it
constexpr Tenths kAside = 90;     // to a label beside it

/// A label may cross so many lines; one that crosses more says less than it hides.
constexpr std::ptrdiff_t kMostHidden = 4;

/// The first line of a label.
SvgPoint BaseLine(const Box& box) { return {(box.left + box.right) / 2, box.top + kAscent}; }

/// Where a label of that size may be: above the point, beside it, or higher, and there beside it as well.
std::vector<Box> PlacesAround(SvgPoint point, Tenths width, Tenths height) {
  constexpr Tenths step = 150;
  constexpr int steps = 5;
  const auto at = [&](Tenths left, Tenths bottom) { return Box{left, bottom - height, left + width, bottom}; };
  std::vector<Box> places{at(point.x - width / 2, point.y - kDistance), at(point.x + kAside, point.y + height / 2),
                          at(point.x - kAside - width, point.y + height / 2)};
  for (int i = 1; i <= steps; ++i) {
    const Tenths bottom = point.y - kDistance - i * step;
    for (const Tenths left : {point.x - width / 2, point.x - width / 5, point.x - width * 4 / 5}) {
      places.push_back(at(left, bottom));
    }
  }
  return places;
}

/// Where a label of that width may be: above the curve or below it, at its end if possible.
std::vector<Box> PlacesAlong(const std::vector<SvgPoint>& curve, Tenths width) {
  constexpr Tenths distance = 50;
  std::vector<Box> places;
  for (auto point = curve.rbegin(); point != curve.rend(); ++point) {
    const auto& [x, y] = *point;
    places.push_back({x + distance, y - distance - kLineHeight, x + distance + width, y - distance});
    places.push_back({x - distance - width, y + distance, x - distance, y + distance + kLineHeight});
  }
  return places;
}

/// Labels in the plane leave the ticks beside it alone.
Box LabelBounds(const Box& plane) { return {plane.left, plane.top - kMargin, kPictureWidth - kMargin, plane.bottom}; }

}  // namespace

CPictureLabels::CPictureLabels(CSvgWriter& svg, const PictureContent& content, const CPicturePlane& plane)
    : m_svg(svg), m_content(content), m_plane(plane), m_placer(LabelBounds(plane.Area())) {}

void CPictureLabels::Avoid(SvgPoint from, SvgPoint to) {
  constexpr Tenths width = 20;
  m_placer.Avoid({std::min(from.x, to.x) - width, std::min(from.y, to.y) - width, std::max(from.x, to.x) + width,
                  std::max(from.y, to.y) + width});
}

void CPictureLabels::Avoid(const std::vector<SvgPoint>& line) {
  for (std::size_t i = 1; i < line.size(); ++i) Avoid(line[i - 1], line[i]);
}

void CPictureLabels::LabelColumns() {
  for (const CFixedColumn& column : FixedColumns(m_content)) LabelColumn(column);
}

void CPictureLabels::LabelColumn(const CFixedColumn& column) {
  const std::string volts = Volts(column.Voltage());
  const std::string amperes = column.CurrentsText();
  const SvgPoint point{m_plane.X(column.Voltage()), m_plane.Y(column.GreatestCurrent())};
  const Tenths width = std::max(TextWidth(volts, kFontSize), TextWidth(amperes, kFontSize));
  const std::optional<Box> box = m_placer.Place(PlacesAround(point, width, 2 * kLineHeight), kMostHidden);
  if (!box) {
    PlaceNumber(column.FirstNumber(), point);
    return;
  }
  const auto [x, y] = BaseLine(*box);
  if (box->bottom < point.y - kDistance) m_svg.Line("power-leader", {point.x, point.y - 50}, {x, box->bottom});
  const std::string cssClass = ClassOf("power-label", m_content, Supply::Fixed, column.Layers());
  m_svg.Text(cssClass + " power-volts", {x, y}, SvgAnchor::Middle, volts);
  m_svg.Text(cssClass, {x, y + kLineHeight}, SvgAnchor::Middle, amperes);
}

void CPictureLabels::PlaceNumber(std::uint64_t number, SvgPoint point) {
  const std::string text = std::string("#").append(std::to_string(number));
  const std::optional<Box> box =
      m_placer.Place(PlacesAround(point, TextWidth(text, kFontSize), kLineHeight), kMostHidden);
  if (box) m_svg.Text("power-label power-number", BaseLine(*box), SvgAnchor::Middle, text);
}

void CPictureLabels::LabelRating(const LayeredRating& rating, const std::vector<SvgPoint>& curve) {
  const std::string text = "rating " + Watts(rating.rating);
  const std::optional<Box> box = m_placer.Place(PlacesAlong(curve, TextWidth(text, kFontSize)), 2 * kMostHidden);
  if (!box) return;
  m_svg.Text(ClassOf("power-label power-watts", m_content, rating.layers), BaseLine(*box), SvgAnchor::Middle, text);
}

void CPictureLabels::LabelRange(const LayeredShape& range) {
  const PowerShape& shape = range.shape;
  PlaceNumber(range.number,
              {m_plane.X((shape.minVoltage + shape.maxVoltage) / 2), m_plane.Y(CurrentAt(shape, shape.maxVoltage))});
}

}  // namespace vifanalysis

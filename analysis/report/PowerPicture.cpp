#include "report/PowerPicture.h"

#include "power/Units.h"
#include "report/PictureClasses.h"
#include "report/PictureContent.h"
#include "report/PictureLabels.h"
#include "report/PicturePlane.h"
#include "report/RangeLanes.h"
#include "report/SvgWriter.h"

#include <analysis/Text.h>

#include <algorithm>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr Tenths kRowHeight = 200;
constexpr Tenths kLegendHeight = 240;
constexpr Tenths kLegendSample = 240;
constexpr Tenths kLegendDistance = 3200;
constexpr Tenths kFirstRow = 130;  // the middle of the uppermost row
constexpr Tenths kTickRow = 260;   // the height of the texts below the plane
constexpr std::uint64_t kCurveSteps = 40;

std::string ShortLabel(const PowerLayer& layer) {
  return CutToLength(Printable(layer.label), kFontSize, kLegendDistance - kLegendSample - 300);
}

/// One picture being drawn.
class CPowerDrawing {
 public:
  CPowerDrawing(CMarkup& page, const PictureContent& content, const std::vector<PowerLayer>& layers)
      : m_svg(page),
        m_content(content),
        m_layers(layers),
        m_lanes(LanesOf(content, CPicturePlane(content.voltages, content.currents, 0))),
        m_plane(content.voltages, content.currents,
                kFirstRow - 30 + LegendHeight() + static_cast<Tenths>(m_lanes.rows) * kRowHeight),
        m_labels(m_svg, m_content, m_plane) {
    FindNotes();
  }

  void Draw(const std::string& title, const std::string& idPrefix);

 private:
  Tenths LegendHeight() const { return m_content.isCompared ? kLegendHeight : 0; }
  Tenths Height() const {
    return m_plane.Area().bottom + kTickRow + static_cast<Tenths>(m_notes.size()) * kLineHeight + kMargin;
  }

  void FindNotes();
  std::string Description() const;
  std::string DescriptionOf(InLayers layer) const;

  void DrawGrid();
  void DrawLegend();
  void DrawLane(const RangeLane& lane);
  void DrawLaneEnd(SvgPoint point, const RangeLane& lane, InLayers layer);
  void DrawArea(const LayeredShape& range);
  void DrawAreas();
  void DrawBar(const LayeredShape& fixed, InLayers layer);
  void DrawBars();
  void DrawRatings();
  void DrawLabels();
  void DrawNotes();

  std::uint64_t CurveStart(std::uint64_t rating) const { return rating * 1000 / m_content.currents.limit; }
  bool IsVisible(std::uint64_t rating) const { return CurveStart(rating) < m_content.voltages.limit; }
  std::vector<SvgPoint> CurveOf(std::uint64_t rating) const;

  CSvgWriter m_svg;
  const PictureContent& m_content;
  const std::vector<PowerLayer>& m_layers;
  RangeLanes m_lanes;
  CPicturePlane m_plane;
  CPictureLabels m_labels;
  std::vector<std::string> m_notes;
};

void CPowerDrawing::FindNotes() {
  const PicturedPdos& count = m_content.count;
  if (count.unusable != 0) {
    m_notes.push_back("Not drawn: " + Amount(count.unusable, "PDO") + " without usable numbers");
  }
  if (count.surplus != 0) m_notes.push_back("Not drawn: " + Amount(count.surplus, "more PDO"));
  for (const LayeredRating& one : m_content.ratings) {
    if (!IsVisible(one.rating)) m_notes.push_back("Beyond this picture: rating " + Watts(one.rating));
  }
}

std::string CPowerDrawing::DescriptionOf(InLayers layer) const {
  std::string text;
  const auto add = [&](const std::string& part) { text.append(text.empty() ? "" : ", ").append(part); };
  for (const LayeredShape& one : m_content.shapes) {
    if (IsIn(one.layers, layer)) add(TextOf(one.shape));
  }
  for (const LayeredRating& one : m_content.ratings) {
    if (IsIn(one.layers, layer)) add("rating " + Watts(one.rating));
  }
  return text;
}

std::string CPowerDrawing::Description() const {
  std::string first = DescriptionOf(InLayers::First);
  if (!m_content.isCompared) return first;
  return ShortLabel(m_layers.front()) + ": " + first + ". " + ShortLabel(m_layers.back()) + ": " +
         DescriptionOf(InLayers::Second);
}

void CPowerDrawing::DrawGrid() {
  const Box& area = m_plane.Area();
  const Axis& voltages = m_content.voltages;
  const Axis& currents = m_content.currents;
  for (std::uint64_t current = 0; current <= currents.limit; current += currents.step) {
    const Tenths y = m_plane.Y(current);
    m_svg.Line(current == 0 ? "power-axis" : "power-grid", {area.left, y}, {area.right, y});
    m_svg.Text("power-tick", {area.left - 80, y + kDrop}, SvgAnchor::End, Amperes(current));
  }
  for (std::uint64_t voltage = 0; voltage <= voltages.limit; voltage += voltages.step) {
    const Tenths x = m_plane.X(voltage);
    m_svg.Line(voltage == 0 ? "power-axis" : "power-grid", {x, area.top}, {x, area.bottom});
    if (voltage != 0) m_svg.Text("power-tick", {x, area.bottom + 190}, SvgAnchor::Middle, Volts(voltage));
  }
}

void CPowerDrawing::DrawLegend() {
  Tenths x = m_plane.Area().left;
  for (const InLayers layer : {InLayers::First, InLayers::Second}) {
    m_svg.Line(ClassOf("power-bar", m_content, layer), {x, kFirstRow}, {x + kLegendSample, kFirstRow});
    m_svg.Circle(ClassOf("power-point", m_content, layer), {x + kLegendSample, kFirstRow});
    m_svg.Text("power-label power-legend", {x + kLegendSample + 100, kFirstRow + kDrop}, SvgAnchor::Start,
               ShortLabel(layer == InLayers::First ? m_layers.front() : m_layers.back()));
    x += kLegendDistance;
  }
}

void CPowerDrawing::DrawLane(const RangeLane& lane) {
  constexpr Tenths gap = 60;
  const Tenths y = kFirstRow + LegendHeight() + static_cast<Tenths>(lane.row) * kRowHeight;
  const Tenths left = m_plane.X(lane.minVoltage);
  const Tenths right = m_plane.X(lane.maxVoltage);
  const Tenths gapLeft = std::clamp(lane.textLeft - gap, left, right);
  const Tenths gapRight = std::clamp(lane.textRight + gap, left, right);
  const std::string cssClass = ClassOf("power-lane", m_content, lane.supply, lane.layers);
  if (gapLeft > left) m_svg.Line(cssClass, {left, y}, {gapLeft, y});
  if (gapRight < right) m_svg.Line(cssClass, {gapRight, y}, {right, y});
  DrawLaneEnd({left, y}, lane, InLayers::First);
  DrawLaneEnd({right, y}, lane, InLayers::Second);
  m_svg.Text("power-label", {(lane.textLeft + lane.textRight) / 2, y + kDrop}, SvgAnchor::Middle, lane.text);
}

/// Two layers have the points of the legend at their ends: the first at the left, the second at the right.
void CPowerDrawing::DrawLaneEnd(SvgPoint point, const RangeLane& lane, InLayers layer) {
  constexpr Tenths half = 45;
  if (m_content.isCompared && IsIn(lane.layers, layer)) {
    m_svg.Circle(ClassOf("power-point", m_content, layer), point);
    return;
  }
  m_svg.Line(ClassOf("power-lane", m_content, lane.supply, lane.layers) + " power-end", {point.x, point.y - half},
             {point.x, point.y + half});
}

void CPowerDrawing::DrawArea(const LayeredShape& range) {
  PowerShape shape = range.shape;
  shape.current = std::min(shape.current, m_content.currents.limit);
  const std::uint64_t bend =
      std::clamp(LimitVoltage(shape).value_or(shape.maxVoltage), shape.minVoltage, shape.maxVoltage);
  std::vector<SvgPoint> outline{{m_plane.X(shape.minVoltage), m_plane.Area().bottom}};
  const auto lineTo = [&](std::uint64_t voltage) {
    outline.push_back({m_plane.X(voltage), m_plane.Y(CurrentAt(shape, voltage))});
  };
  lineTo(shape.minVoltage);
  for (std::uint64_t i = 0; i <= kCurveSteps && bend < shape.maxVoltage; ++i) {
    lineTo(bend + (shape.maxVoltage - bend) * i / kCurveSteps);
  }
  if (bend == shape.maxVoltage) lineTo(shape.maxVoltage);
  outline.push_back({m_plane.X(shape.maxVoltage), m_plane.Area().bottom});
  m_svg.Path(ClassOf("power-area", m_content, shape.supply, range.layers), outline);
  m_labels.Avoid(outline);
}

void CPowerDrawing::DrawAreas() {
  for (const LayeredShape& one : m_content.shapes) {
    if (one.shape.IsRange()) DrawArea(one);
  }
}

/// The bars of two layers at one voltage stand beside each other.
void CPowerDrawing::DrawBar(const LayeredShape& fixed, InLayers layer) {
  const Tenths aside = m_content.isCompared ? 40 : 0;
  const Tenths x = m_plane.X(fixed.shape.maxVoltage) + (layer == InLayers::First ? -aside : aside);
  const SvgPoint top{x, m_plane.Y(fixed.shape.current)};
  const SvgPoint bottom{x, m_plane.Area().bottom};
  m_svg.Line(ClassOf("power-bar", m_content, Supply::Fixed, layer), bottom, top);
  m_svg.Circle(ClassOf("power-point", m_content, Supply::Fixed, layer), top);
  m_labels.Avoid(bottom, {top.x, top.y - 30});
}

void CPowerDrawing::DrawBars() {
  for (const LayeredShape& one : m_content.shapes) {
    if (one.shape.IsRange()) continue;
    for (const InLayers layer : {InLayers::First, InLayers::Second}) {
      if (IsIn(one.layers, layer)) DrawBar(one, layer);
    }
  }
}

std::vector<SvgPoint> CPowerDrawing::CurveOf(std::uint64_t rating) const {
  std::vector<SvgPoint> points;
  const std::uint64_t start = std::max<std::uint64_t>(1, CurveStart(rating));
  const std::uint64_t end = m_content.voltages.limit;
  for (std::uint64_t i = 0; i <= kCurveSteps; ++i) {
    const std::uint64_t voltage = start + (end - start) * i / kCurveSteps;
    points.push_back({m_plane.X(voltage), m_plane.Y(rating * 1000 / voltage)});
  }
  return points;
}

void CPowerDrawing::DrawRatings() {
  for (const LayeredRating& one : m_content.ratings) {
    if (!IsVisible(one.rating)) continue;
    const std::vector<SvgPoint> curve = CurveOf(one.rating);
    m_svg.Path(ClassOf("power-rating", m_content, one.layers), curve);
    m_labels.Avoid(curve);
  }
}

void CPowerDrawing::DrawLabels() {
  m_labels.LabelColumns();
  for (const LayeredRating& one : m_content.ratings) {
    if (IsVisible(one.rating)) m_labels.LabelRating(one, CurveOf(one.rating));
  }
  for (const LayeredShape* range : m_lanes.others) m_labels.LabelRange(*range);
}

void CPowerDrawing::DrawNotes() {
  Tenths y = m_plane.Area().bottom + kTickRow + kAscent;
  for (const std::string& note : m_notes) {
    m_svg.Text("power-note", {m_plane.Area().left, y}, SvgAnchor::Start, note);
    y += kLineHeight;
  }
}

void CPowerDrawing::Draw(const std::string& title, const std::string& idPrefix) {
  const std::string titleId = idPrefix + "-title";
  const std::string descriptionId = idPrefix + "-desc";
  m_svg.Begin("svg", {{"class", "power-picture"},
                      {"viewBox", "0 0 " + LengthText(kPictureWidth) + " " + LengthText(Height())},
                      {"role", "img"},
                      {"aria-labelledby", titleId},
                      {"aria-describedby", descriptionId}});
  m_svg.Element("title", {{"id", titleId}}, title);
  m_svg.Element("desc", {{"id", descriptionId}}, Description());
  DrawGrid();
  if (m_content.isCompared) DrawLegend();
  for (const RangeLane& lane : m_lanes.lanes) DrawLane(lane);
  DrawAreas();
  DrawRatings();
  DrawBars();
  DrawLabels();
  DrawNotes();
  m_svg.End();
}

}  // namespace

PicturedPdos DrawPower(CMarkup& page, const std::vector<PowerLayer>& layers, const std::string& title,
                       const std::string& idPrefix) {
  const PictureContent content = ContentOf(layers);
  if (content.count) CPowerDrawing(page, content, layers).Draw(title, idPrefix);
  return content.count;
}

}  // namespace vifanalysis

#include "report/PowerPicture.h"

#include "power/Units.h"
#include "report/LabelPlacer.h"
#include "report/PictureContent.h"
#include "report/PicturePlane.h"
#include "report/RangeLanes.h"
#include "report/SvgWriter.h"

#include <analysis/Text.h>

#include <algorithm>
#include <functional>
#include <map>
#include <set>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr Tenths kRowHeight = 200;
constexpr Tenths kLineHeight = 145;
constexpr Tenths kAscent = 110;  // from the top of a line of text to its base line
constexpr std::uint64_t kCurveSteps = 40;
constexpr std::size_t kLabelColumns = 24;

std::string_view LayerClass(InLayers layers) {
  switch (layers) {
    case InLayers::First: return "power-first";
    case InLayers::Second: return "power-second";
    case InLayers::Both: break;
  }
  return "power-both";
}

std::string_view SupplyClass(Supply supply) {
  switch (supply) {
    case Supply::Battery: return "power-battery";
    case Supply::Variable: return "power-variable";
    case Supply::Programmable: return "power-pps";
    case Supply::EprAdjustable:
    case Supply::SprAdjustable: return "power-avs";
    default: return "power-fixed";
  }
}

bool IsIn(InLayers layers, InLayers layer) {
  return (static_cast<unsigned>(layers) & static_cast<unsigned>(layer)) != 0;
}

std::string ShortLabel(const PowerLayer& layer) { return CutToWidth(Printable(layer.label), kLabelColumns); }

/// The fixed supplies at one voltage.
using Column = std::vector<const LayeredShape*>;

/// The currents of a column in one layer, the greatest first.
std::string CurrentsText(const Column& column, InLayers layer) {
  std::set<std::uint64_t, std::greater<>> currents;
  for (const LayeredShape* one : column) {
    if (IsIn(one->layers, layer)) currents.insert(one->shape.current);
  }
  std::string text;
  constexpr int most = 3;
  int count = 0;
  for (const std::uint64_t current : currents) {
    if (count++ == most) return text.append(", …");
    if (!text.empty()) text += ", ";
    text += Amperes(current);
  }
  return text;
}

/// "3 A", or "3 A → 3.25 A" where the layers differ.
std::string CurrentsText(const Column& column) {
  const std::string first = CurrentsText(column, InLayers::First);
  const std::string second = CurrentsText(column, InLayers::Second);
  if (first.empty() || second.empty() || first == second) return first.empty() ? second : first;
  return first + " → " + second;
}

InLayers LayersOf(const Column& column) {
  unsigned layers = 0;
  for (const LayeredShape* one : column) layers |= static_cast<unsigned>(one->layers);
  return static_cast<InLayers>(layers);
}

std::uint64_t GreatestCurrent(const Column& column) {
  std::uint64_t greatest = 0;
  for (const LayeredShape* one : column) greatest = std::max(greatest, one->shape.current);
  return greatest;
}

/// Where a label of that size may be: above the point, beside it, or higher.
std::vector<Box> PlacesAround(Tenths x, Tenths y, Tenths width, Tenths height) {
  constexpr Tenths distance = 75;
  constexpr Tenths step = 150;
  constexpr int steps = 5;
  const auto at = [&](Tenths left, Tenths bottom) { return Box{left, bottom - height, left + width, bottom}; };
  std::vector<Box> places{at(x - width / 2, y - distance), at(x + distance, y + height / 2),
                          at(x - distance - width, y + height / 2)};
  for (int i = 1; i <= steps; ++i) {
    const Tenths bottom = y - distance - i * step;
    for (const Tenths left : {x - width / 2, x - width / 5, x - width * 4 / 5}) places.push_back(at(left, bottom));
  }
  return places;
}

/// One picture being drawn.
class CPowerDrawing {
 public:
  CPowerDrawing(CMarkup& page, const PictureContent& content, const std::vector<PowerLayer>& layers)
      : m_svg(page),
        m_content(content),
        m_layers(layers),
        m_lanes(LanesOf(content, CPicturePlane(content.voltages, content.currents, 0))),
        m_plane(content.voltages, content.currents, PlaneTop()),
        m_placer({m_plane.Area().left, m_plane.Area().top - 40, kPictureWidth - kMargin, m_plane.Area().bottom}) {
    FindNotes();
  }

  void Draw(const std::string& title, const std::string& idPrefix);

 private:
  Tenths LegendHeight() const { return m_content.isCompared ? 240 : 0; }
  Tenths PlaneTop() const { return 100 + LegendHeight() + static_cast<Tenths>(m_lanes.rows) * kRowHeight; }
  Tenths Height() const {
    return m_plane.Area().bottom + 260 + static_cast<Tenths>(m_notes.size()) * kLineHeight + kMargin;
  }

  std::string ClassOf(std::string_view what, Supply supply, InLayers layers) const;
  std::string Description() const;
  void FindNotes();

  void DrawLegend();
  void DrawLanes();
  void DrawGrid();
  void DrawArea(const LayeredShape& one);
  void DrawAreas();
  void DrawRatings();
  void DrawBar(const LayeredShape& one);
  void DrawBars();
  void LabelColumn(const Column& column);
  void LabelColumns();
  void LabelRating(const LayeredRating& one);
  void LabelOthers();
  void DrawNotes();

  bool IsVisible(std::uint64_t rating) const { return CurveStart(rating) < m_content.voltages.limit; }
  std::uint64_t CurveStart(std::uint64_t rating) const { return rating * 1000 / m_content.currents.limit; }
  std::vector<SvgPoint> CurvePoints(std::uint64_t rating) const;
  Tenths BarX(const LayeredShape& one, InLayers layer) const;
  bool PlaceNumber(const LayeredShape& one, Tenths x, Tenths y);

  CSvgWriter m_svg;
  const PictureContent& m_content;
  const std::vector<PowerLayer>& m_layers;
  RangeLanes m_lanes;
  CPicturePlane m_plane;
  CLabelPlacer m_placer;
  std::map<std::uint64_t, Column> m_columns;
  std::vector<std::string> m_notes;
};

std::string CPowerDrawing::ClassOf(std::string_view what, Supply supply, InLayers layers) const {
  return std::string(what).append(" ").append(m_content.isCompared ? LayerClass(layers) : SupplyClass(supply));
}

std::string CPowerDrawing::Description() const {
  std::string text;
  for (const InLayers layer : {InLayers::First, InLayers::Second}) {
    const std::size_t index = layer == InLayers::First ? 0 : 1;
    if (index == m_layers.size()) break;
    if (!text.empty()) text += ". ";
    if (m_content.isCompared) text.append(ShortLabel(m_layers[index])).append(": ");
    std::string_view separator;
    for (const LayeredShape& one : m_content.shapes) {
      if (!IsIn(one.layers, layer)) continue;
      text.append(separator).append(TextOf(one.shape));
      separator = ", ";
    }
    for (const LayeredRating& one : m_content.ratings) {
      if (!IsIn(one.layers, layer)) continue;
      text.append(separator).append("rating ").append(Watts(one.rating));
    }
  }
  return text;
}

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

void CPowerDrawing::DrawLegend() {
  Tenths x = m_plane.Area().left;
  constexpr Tenths y = 130;
  constexpr Tenths sample = 240;
  for (const InLayers layer : {InLayers::First, InLayers::Second}) {
    const std::string_view name = LayerClass(layer);
    const std::string label = ShortLabel(m_layers[layer == InLayers::First ? 0 : 1]);
    m_svg.Line(std::string("power-bar ").append(name), {x, y}, {x + sample, y});
    m_svg.Circle(std::string("power-point ").append(name), {x + sample, y});
    m_svg.Text("power-legend", {x + sample + 100, y + 42}, SvgAnchor::Start, label);
    x += 3300;
  }
}

void CPowerDrawing::DrawLanes() {
  for (const RangeLane& lane : m_lanes.lanes) {
    const Tenths y = 130 + LegendHeight() + static_cast<Tenths>(lane.row) * kRowHeight;
    const Tenths left = m_plane.X(lane.minVoltage);
    const Tenths right = m_plane.X(lane.maxVoltage);
    const std::string cssClass = ClassOf("power-lane", lane.supply, lane.layers);
    const Tenths gapLeft = std::clamp(lane.textLeft - 60, left, right);
    const Tenths gapRight = std::clamp(lane.textRight + 60, left, right);
    if (gapLeft > left) m_svg.Line(cssClass, {left, y}, {gapLeft, y});
    if (gapRight < right) m_svg.Line(cssClass, {gapRight, y}, {right, y});
    m_svg.Line(cssClass + " power-end", {left, y - 45}, {left, y + 45});
    m_svg.Line(cssClass + " power-end", {right, y - 45}, {right, y + 45});
    m_svg.Text("power-label", {(lane.textLeft + lane.textRight) / 2, y + 42}, SvgAnchor::Middle, lane.text);
  }
}

void CPowerDrawing::DrawGrid() {
  const Box& area = m_plane.Area();
  const Axis& voltages = m_content.voltages;
  const Axis& currents = m_content.currents;
  for (std::uint64_t current = 0; current <= currents.limit; current += currents.step) {
    const Tenths y = m_plane.Y(current);
    m_svg.Line(current == 0 ? "power-axis" : "power-grid", {area.left, y}, {area.right, y});
    m_svg.Text("power-tick", {area.left - 80, y + 42}, SvgAnchor::End, Amperes(current));
  }
  for (std::uint64_t voltage = 0; voltage <= voltages.limit; voltage += voltages.step) {
    const Tenths x = m_plane.X(voltage);
    m_svg.Line(voltage == 0 ? "power-axis" : "power-grid", {x, area.top}, {x, area.bottom});
    if (voltage != 0) m_svg.Text("power-tick", {x, area.bottom + 190}, SvgAnchor::Middle, Volts(voltage));
  }
}

void CPowerDrawing::DrawArea(const LayeredShape& one) {
  PowerShape shape = one.shape;
  shape.current = std::min(shape.current, m_content.currents.limit);
  const std::uint64_t bend =
      std::clamp(LimitVoltage(shape).value_or(shape.maxVoltage), shape.minVoltage, shape.maxVoltage);
  CSvgPath path;
  path.To({m_plane.X(shape.minVoltage), m_plane.Area().bottom});
  const auto lineTo = [&](std::uint64_t voltage) {
    path.To({m_plane.X(voltage), m_plane.Y(CurrentAt(shape, voltage))});
  };
  lineTo(shape.minVoltage);
  for (std::uint64_t i = 0; i <= kCurveSteps && bend < shape.maxVoltage; ++i) {
    lineTo(bend + (shape.maxVoltage - bend) * i / kCurveSteps);
  }
  if (bend == shape.maxVoltage) lineTo(shape.maxVoltage);
  path.To({m_plane.X(shape.maxVoltage), m_plane.Area().bottom});
  m_svg.Path(ClassOf("power-area", shape.supply, one.layers), path);
}

void CPowerDrawing::DrawAreas() {
  for (const LayeredShape& one : m_content.shapes) {
    if (one.shape.IsRange()) DrawArea(one);
  }
}

std::vector<SvgPoint> CPowerDrawing::CurvePoints(std::uint64_t rating) const {
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
    CSvgPath path;
    for (const auto& [x, y] : CurvePoints(one.rating)) {
      path.To({x, y});
      m_placer.Avoid({x - 40, y - 40, x + 40, y + 40});
    }
    m_svg.Path(m_content.isCompared ? std::string("power-rating ").append(LayerClass(one.layers)) : "power-rating",
               path);
  }
}

/// The bars of two layers at one voltage stand beside each other.
Tenths CPowerDrawing::BarX(const LayeredShape& one, InLayers layer) const {
  const Tenths x = m_plane.X(one.shape.maxVoltage);
  if (!m_content.isCompared) return x;
  return layer == InLayers::First ? x - 40 : x + 40;
}

void CPowerDrawing::DrawBar(const LayeredShape& one) {
  for (const InLayers layer : {InLayers::First, InLayers::Second}) {
    if (!IsIn(one.layers, layer)) continue;
    const Tenths x = BarX(one, layer);
    const Tenths y = m_plane.Y(one.shape.current);
    m_svg.Line(ClassOf("power-bar", one.shape.supply, layer), {x, m_plane.Area().bottom}, {x, y});
    m_svg.Circle(ClassOf("power-point", one.shape.supply, layer), {x, y});
    m_placer.Avoid({x - 50, y - 50, x + 50, m_plane.Area().bottom});
  }
}

void CPowerDrawing::DrawBars() {
  for (const LayeredShape& one : m_content.shapes) {
    if (one.shape.IsRange()) continue;
    DrawBar(one);
    m_columns[one.shape.maxVoltage].push_back(&one);
  }
}

/// A short label where there is no room for another.
bool CPowerDrawing::PlaceNumber(const LayeredShape& one, Tenths x, Tenths y) {
  const std::string text = std::string("#").append(std::to_string(one.number));
  const std::optional<Box> box = m_placer.Place(PlacesAround(x, y, TextWidth(text, kFontSize), kLineHeight));
  if (box)
    m_svg.Text("power-label power-number", {(box->left + box->right) / 2, box->top + kAscent}, SvgAnchor::Middle, text);
  return box.has_value();
}

void CPowerDrawing::LabelColumn(const Column& column) {
  const std::string volts = Volts(column.front()->shape.maxVoltage);
  const std::string amperes = CurrentsText(column);
  const Tenths x = m_plane.X(column.front()->shape.maxVoltage);
  const Tenths y = m_plane.Y(GreatestCurrent(column));
  const Tenths width = std::max(TextWidth(volts, kFontSize), TextWidth(amperes, kFontSize));
  const std::optional<Box> box = m_placer.Place(PlacesAround(x, y, width, 2 * kLineHeight));
  if (!box) {
    PlaceNumber(*column.front(), x, y);
    return;
  }
  const Tenths middle = (box->left + box->right) / 2;
  if (box->bottom < y - 100) m_svg.Line("power-leader", {x, y - 50}, {middle, box->bottom});
  const std::string cssClass = ClassOf("power-label", Supply::Fixed, LayersOf(column));
  m_svg.Text(cssClass + " power-volts", {middle, box->top + kAscent}, SvgAnchor::Middle, volts);
  m_svg.Text(cssClass, {middle, box->top + kAscent + kLineHeight}, SvgAnchor::Middle, amperes);
}

void CPowerDrawing::LabelColumns() {
  for (const auto& [voltage, column] : m_columns) LabelColumn(column);
}

void CPowerDrawing::LabelRating(const LayeredRating& one) {
  const std::string text = "rating " + Watts(one.rating);
  const Tenths width = TextWidth(text, kFontSize);
  std::vector<Box> places;
  const auto points = CurvePoints(one.rating);
  for (auto point = points.rbegin(); point != points.rend(); ++point) {
    const auto& [x, y] = *point;
    places.push_back({x + 50, y - 50 - kLineHeight, x + 50 + width, y - 50});
    places.push_back({x - 50 - width, y + 50, x - 50, y + 50 + kLineHeight});
  }
  const std::optional<Box> box = m_placer.Place(places);
  if (!box) return;
  std::string cssClass = "power-label power-watts";
  if (m_content.isCompared) cssClass.append(" ").append(LayerClass(one.layers));
  m_svg.Text(cssClass, {(box->left + box->right) / 2, box->top + kAscent}, SvgAnchor::Middle, text);
}

void CPowerDrawing::LabelOthers() {
  for (const LayeredShape* one : m_lanes.others) {
    PlaceNumber(*one, m_plane.X((one->shape.minVoltage + one->shape.maxVoltage) / 2),
                m_plane.Y(CurrentAt(one->shape, one->shape.maxVoltage)));
  }
}

void CPowerDrawing::DrawNotes() {
  Tenths y = m_plane.Area().bottom + 260 + kAscent;
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
  DrawLanes();
  DrawAreas();
  DrawRatings();
  DrawBars();
  LabelColumns();
  for (const LayeredRating& one : m_content.ratings) {
    if (IsVisible(one.rating)) LabelRating(one);
  }
  LabelOthers();
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

#include "report/SvgWriter.h"

namespace vifanalysis {

namespace {

const char* AnchorName(SvgAnchor anchor) {
  switch (anchor) {
    case SvgAnchor::Start: return "start";
    case SvgAnchor::Middle: return "middle";
    case SvgAnchor::End: break;
  }
  return "end";
}

}  // namespace

void CSvgWriter::Begin(std::string_view element, Attributes attributes) {
  m_page.Begin(element, attributes);
  m_page.Append("\n");
}

void CSvgWriter::End() {
  m_page.End();
  m_page.Append("\n");
}

void CSvgWriter::Element(std::string_view element, Attributes attributes, std::string_view text) {
  m_page.Element(element, attributes, text);
  m_page.Append("\n");
}

void CSvgWriter::Line(const std::string& cssClass, SvgPoint from, SvgPoint to) {
  Element("line", {{"class", cssClass},
                   {"x1", LengthText(from.x)},
                   {"y1", LengthText(from.y)},
                   {"x2", LengthText(to.x)},
                   {"y2", LengthText(to.y)}});
}

void CSvgWriter::Circle(const std::string& cssClass, SvgPoint middle) {
  constexpr Tenths radius = 45;
  Element("circle",
          {{"class", cssClass}, {"cx", LengthText(middle.x)}, {"cy", LengthText(middle.y)}, {"r", LengthText(radius)}});
}

void CSvgWriter::Path(const std::string& cssClass, std::span<const SvgPoint> points) {
  std::string data;
  for (const auto& [x, y] : points) {
    data += data.empty() ? 'M' : 'L';
    data.append(LengthText(x)).append(" ").append(LengthText(y));
  }
  Element("path", {{"class", cssClass}, {"d", data}});
}

void CSvgWriter::Text(const std::string& cssClass, SvgPoint point, SvgAnchor anchor, std::string_view text) {
  Element("text",
          {{"class", cssClass},
           {"x", LengthText(point.x)},
           {"y", LengthText(point.y)},
           {"text-anchor", AnchorName(anchor)}},
          text);
}

}  // namespace vifanalysis

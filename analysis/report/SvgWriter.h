// Writes the shapes of a picture.
#pragma once

#include "report/Markup.h"
#include "report/PictureScale.h"

#include <span>
#include <string>
#include <string_view>

namespace vifanalysis {

/// A place in a picture.
struct SvgPoint {
  Tenths x;
  Tenths y;
};

enum class SvgAnchor { Start, Middle, End };

/// Shapes of SVG, each on a line of its own. How they look is up to their classes.
class CSvgWriter {
 public:
  explicit CSvgWriter(CMarkup& page) : m_page(page) {}

  void Begin(std::string_view element, Attributes attributes);
  void End();
  void Element(std::string_view element, Attributes attributes, std::string_view text = {});

  void Line(const std::string& cssClass, SvgPoint from, SvgPoint to);
  void Circle(const std::string& cssClass, SvgPoint middle);

  /// Straight lines from point to point.
  void Path(const std::string& cssClass, std::span<const SvgPoint> points);

  void Text(const std::string& cssClass, SvgPoint point, SvgAnchor anchor, std::string_view text);

 private:
  CMarkup& m_page;
};

}  // namespace vifanalysis

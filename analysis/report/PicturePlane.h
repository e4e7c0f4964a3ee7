// Where voltages and currents are in a picture.
#pragma once

#include "report/LabelPlacer.h"
#include "report/PictureScale.h"
#include "report/SvgWriter.h"

#include <algorithm>
#include <cstdint>

namespace vifanalysis {

constexpr Tenths kPictureWidth = 7200;
constexpr Tenths kFontSize = 120;
constexpr Tenths kLineHeight = 145;
constexpr Tenths kAscent = 110;  // from the top of a line of text to its base line
constexpr Tenths kDrop = 42;     // from the middle of a line of text to its base line

/// Everything in a picture is at least that far from its edges.
constexpr Tenths kMargin = 40;

/// The rectangle between the axes.
class CPicturePlane {
 public:
  CPicturePlane(const Axis& voltages, const Axis& currents, Tenths top)
      : m_voltages(voltages), m_currents(currents), m_box{520, top, kPictureWidth - 240, top + 2600} {}

  const Box& Area() const { return m_box; }
  const Axis& Voltages() const { return m_voltages; }
  const Axis& Currents() const { return m_currents; }

  Tenths X(std::uint64_t voltage) const {
    return m_box.left + Scaled(voltage, m_voltages.limit, m_box.right - m_box.left);
  }

  /// A current above the plane is at its upper edge.
  Tenths Y(std::uint64_t current) const {
    return m_box.bottom - Scaled(std::min(current, m_currents.limit), m_currents.limit, m_box.bottom - m_box.top);
  }

 private:
  static Tenths Scaled(std::uint64_t amount, std::uint64_t limit, Tenths length) {
    return static_cast<Tenths>((amount * static_cast<std::uint64_t>(length) + limit / 2) / limit);
  }

  Axis m_voltages;
  Axis m_currents;
  Box m_box;
};

}  // namespace vifanalysis

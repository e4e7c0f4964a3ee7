// The power of a port as a picture.
#pragma once

#include "report/Markup.h"
#include "rules/PdoView.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace vifanalysis {

/// What one side of a port offers or asks for in one file.
struct PowerLayer {
  std::string label;                    ///< names the file where there are two; any text
  std::span<const CPdoView> pdos;       ///< borrowed
  std::optional<std::uint64_t> rating;  ///< in mW
};

/// How many PDOs of all layers a picture shows. It says itself what it leaves out.
struct PicturedPdos {
  std::size_t drawn = 0;     ///< several that are equal are drawn as one
  std::size_t unusable = 0;  ///< left out, because numbers are missing, contradictory or beyond what USB can mean
  std::size_t surplus = 0;   ///< left out, because there are too many different ones

  /// Whether there is a picture.
  explicit operator bool() const { return drawn != 0; }
};

/// Writes a plane of voltage and current as an inline `svg` element: fixed supplies as bars, the others as areas below
/// their currents and power limits, and the rating as a curve. No field gives the
/// current of an AVS, which is drawn up to 3 A, or 5 A in the extended power range. Its presentation is in
/// assets/picture.css. It is to stand in an element of the class "power-box" that the keyboard can reach
/// (`tabindex="0"`), because that scrolls where the page is narrow. Nothing is written when no PDO can be drawn.
/// \param layers one, or two to be compared, which are then drawn over one another
/// \param title what the picture shows
/// \param idPrefix what the ids in the picture begin with; unique in the page
PicturedPdos DrawPower(CMarkup& page, const std::vector<PowerLayer>& layers, const std::string& title,
                       const std::string& idPrefix);

}  // namespace vifanalysis

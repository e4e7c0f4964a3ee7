// The source and the sink side of a port.
#pragma once

#include "rules/PortRole.h"

#include <string_view>

namespace vifanalysis {

/// Whether a port of that role has the side.
constexpr bool HasSide(PortRole role, PdoSide side) {
  if (role == PortRole::EMarker) return false;
  return role != (side == PdoSide::Source ? PortRole::ConsumerOnly : PortRole::ProviderOnly);
}

/// The field with the power of the side.
constexpr std::string_view RatingName(PdoSide side) {
  return side == PdoSide::Source ? "PD_Power_As_Source" : "PD_Power_As_Sink";
}

/// The field with the number of PDOs of the side.
constexpr std::string_view CountName(PdoSide side) { return side == PdoSide::Source ? "Num_Src_PDOs" : "Num_Snk_PDOs"; }

/// Whether the port has groups of PDOs of the side, those without a number included.
inline bool HasPdoGroups(const CComponentView& component, PdoSide side) {
  return component.HasGroups(side == PdoSide::Source ? eVifLocSrcPdo : eVifLocSnkPdo);
}

}  // namespace vifanalysis

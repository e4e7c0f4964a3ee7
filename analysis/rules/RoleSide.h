// The source and the sink side of a port.
#pragma once

#include "rules/PdoFacts.h"
#include "rules/PortRole.h"

namespace vifanalysis {

/// Whether a port of that role has the side.
constexpr bool HasSide(PortRole role, PdoSide side) {
  if (role == PortRole::EMarker) return false;
  return role != (side == PdoSide::Source ? PortRole::ConsumerOnly : PortRole::ProviderOnly);
}

/// Whether the port has groups of PDOs of the side, those without a number included.
inline bool HasPdoGroups(const CComponentView& component, PdoSide side) { return component.HasGroups(PdoGroup(side)); }

}  // namespace vifanalysis

// What several rules about PDOs ask and say.
#pragma once

#include "rules/Reporter.h"
#include "rules/VifView.h"

#include <string_view>

namespace vifanalysis {

/// The component's field for the power of a side.
constexpr std::string_view RatingName(PdoSide side) {
  return side == PdoSide::Source ? "PD_Power_As_Source" : "PD_Power_As_Sink";
}

/// The component's field for the extended power range of a side.
constexpr std::string_view EprName(PdoSide side) {
  return side == PdoSide::Source ? "EPR_Supported_As_Src" : "EPR_Supported_As_Snk";
}

/// The component's field for the number of PDOs of a side.
constexpr std::string_view CountName(PdoSide side) { return side == PdoSide::Source ? "Num_Src_PDOs" : "Num_Snk_PDOs"; }

/// "fixed", "battery" and so on; empty for an unknown supply.
std::string_view SupplyName(Supply supply);

/// Where the PDOs of a side stand in a component.
constexpr EVifLocation PdoGroup(PdoSide side) { return side == PdoSide::Source ? eVifLocSrcPdo : eVifLocSnkPdo; }

/// Whether the side has PDOs, all of them with a number, and no fewer than the component says.
bool HasAllPdos(const CComponentView& component, PdoSide side);

/// Whether a rule about PDO lists has found a mistake in the PDO, so that its numbers are in doubt.
bool IsDoubtful(const CPdoView& pdo, const CReporter& reporter);

/// Whether pdo-above-rating has found that the PDO, or the rating of its side, is wrong.
bool ContradictsRating(const CComponentView& component, const CPdoView& pdo, const CReporter& reporter);

}  // namespace vifanalysis

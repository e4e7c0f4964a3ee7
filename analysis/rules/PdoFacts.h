// What several rules about PDOs ask and say.
#pragma once

#include "rules/Reporter.h"
#include "rules/VifView.h"

#include <cstdint>
#include <string>
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

/// Whether the side has PDOs, and no fewer than the component says.
bool HasAllPdos(const CComponentView& component, PdoSide side);

/// Whether another rule has found that the field has no proper value.
bool IsImproper(const FoundField& field, const CReporter& reporter);

/// Whether a rule about values or PDO lists has found a mistake in the PDO, so that its numbers are in doubt.
bool IsDoubtful(const CPdoView& pdo, const CReporter& reporter);

}  // namespace vifanalysis

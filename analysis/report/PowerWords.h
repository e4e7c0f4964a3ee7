// What a port offers or asks for, in one line.
#pragma once

#include "report/ReportedVif.h"

#include <cstdint>
#include <optional>
#include <string>

namespace vifanalysis {

/// The power that the port declares for a side, in mW; nothing when it declares none.
std::optional<std::uint64_t> RatingOf(const CComponentView& component, PdoSide side);

/// Such as "65 W, 5 to 20 V, up to 3.25 A, PPS"; empty when nothing is known. A source without PDOs is described by its
/// Type-C current, and a cable by what it carries, as if that were a source.
std::string PowerInWords(const CReportedVif& vif, const CComponentView& component, PdoSide side);

}  // namespace vifanalysis

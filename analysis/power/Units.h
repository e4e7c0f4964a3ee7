// Quantities in the sentences of findings.
#pragma once

#include <cstdint>
#include <string>

namespace vifanalysis {

/// Millivolts as "5 V" or "3.3 V".
std::string Volts(std::uint64_t milliVolt);

/// Milliamperes as "3 A" or "3.25 A".
std::string Amperes(std::uint64_t milliAmpere);

/// Milliwatts as "65 W" or "7.5 W".
std::string Watts(std::uint64_t milliWatt);

}  // namespace vifanalysis

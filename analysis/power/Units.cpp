#include "power/Units.h"

#include <analysis/Vocabulary.h>

namespace vifanalysis {

std::string Volts(std::uint64_t milliVolt) { return QuantityText({milliVolt, Unit::MilliVolt}); }

std::string Amperes(std::uint64_t milliAmpere) { return QuantityText({milliAmpere, Unit::MilliAmpere}); }

std::string Watts(std::uint64_t milliWatt) { return QuantityText({milliWatt, Unit::MilliWatt}); }

}  // namespace vifanalysis

#include "power/Units.h"

namespace vifanalysis {

std::string Volts(std::uint64_t milliVolt) { return Decimal(milliVolt) + " V"; }

std::string Amperes(std::uint64_t milliAmpere) { return Decimal(milliAmpere) + " A"; }

std::string Watts(std::uint64_t milliWatt) { return Decimal(milliWatt) + " W"; }

std::string Decimal(std::uint64_t thousandths) {
  std::string text = std::to_string(thousandths / 1000);
  if (thousandths % 1000 == 0) return text;
  std::string fraction = std::to_string(1000 + thousandths % 1000).substr(1);
  fraction.erase(fraction.find_last_not_of('0') + 1);
  return text + '.' + fraction;
}

}  // namespace vifanalysis

#include "power/Units.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <string>

namespace vifanalysis {

namespace {

/// The greatest current of the source PDOs, in mA.
std::uint64_t GreatestCurrent(const CComponentView& component) {
  std::uint64_t greatest = 0;
  for (const CPdoView& pdo : component.Pdos(PdoSide::Source))
    greatest = std::max(greatest, pdo.Quantities().current.value_or(0));
  return greatest;
}

}  // namespace

void CheckOver3AUnasked(const CComponentView& component, CReporter& reporter) {
  constexpr std::uint64_t everyCable = 3000;  // mA
  const std::uint64_t current = GreatestCurrent(component);
  if (current <= everyCable || component.IsYes("Captive_Cable")) return;
  for (const std::string_view name : {"SOP_P_Capable", "Type_C_Sources_VCONN"}) {
    if (!component.IsNo(name)) continue;
    reporter.Add(*component.Find(name),
                 "a source PDO offers " + Amperes(current) + ", and a cable has to say that it carries more than " +
                     Amperes(everyCable) + ", but " + std::string(name) + " is NO, so the port cannot ask it");
    return;
  }
}

}  // namespace vifanalysis

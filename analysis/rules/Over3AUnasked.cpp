#include "power/Units.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <string>

namespace vifanalysis {

namespace {

/// The greatest current of the source PDOs in which no other rule has found a mistake, in mA.
std::uint64_t GreatestCurrent(const CComponentView& component, const CReporter& reporter) {
  std::uint64_t greatest = 0;
  for (const CPdoView& pdo : component.Pdos(PdoSide::Source)) {
    if (IsDoubtful(pdo, reporter) || ContradictsRating(component, pdo, reporter)) continue;
    greatest = std::max(greatest, pdo.Quantities().current.value_or(0));
  }
  return greatest;
}

}  // namespace

void CheckOver3AUnasked(const CComponentView& component, CReporter& reporter) {
  constexpr std::uint64_t everyCable = 3000;  // mA
  const std::uint64_t current = GreatestCurrent(component, reporter);
  if (current <= everyCable || component.MayBeYes("Captive_Cable")) return;
  for (const std::string_view name : {"SOP_P_Capable", "Type_C_Sources_VCONN"}) {
    if (!component.IsNo(name)) continue;
    if (reporter.HasFound("vconn-source-needed", component)) return;
    reporter.Add(*component.Find(name),
                 "a source PDO offers " + Amperes(current) + ", and a cable has to say that it carries more than " +
                     Amperes(everyCable) + ", but " + std::string(name) + " is NO, so the port cannot ask it");
    return;
  }
}

}  // namespace vifanalysis

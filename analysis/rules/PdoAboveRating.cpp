#include "power/Units.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

void CheckSide(const CComponentView& component, PdoSide side, std::string_view ratingName, CReporter& reporter) {
  const std::optional<std::uint64_t> rating = component.Number(ratingName);
  if (!rating) return;
  for (const CPdoView& pdo : component.Pdos(side)) {
    const std::optional<std::uint64_t> power = pdo.GreatestPower();
    const std::optional<std::uint64_t> step = pdo.PowerStep();
    if (IsDoubtful(pdo, reporter)) continue;
    if (pdo.IsAugmented() || !power || !step || *power <= *step || *power - *step <= *rating) continue;
    reporter.Add(pdo.PowerField(), std::string("the PDO is of ")
                                       .append(Watts(*power))
                                       .append(", but ")
                                       .append(ratingName)
                                       .append(" is ")
                                       .append(Watts(*rating)));
  }
}

}  // namespace

void CheckPdoAboveRating(const CComponentView& component, CReporter& reporter) {
  CheckSide(component, PdoSide::Source, "PD_Power_As_Source", reporter);
  CheckSide(component, PdoSide::Sink, "PD_Power_As_Sink", reporter);
}

}  // namespace vifanalysis

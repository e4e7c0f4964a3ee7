#include "power/Units.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

/// The greatest power of the PDOs of a side, and what one step more would add to it, in mW.
struct Greatest {
  std::uint64_t power = 0;
  std::uint64_t step = 0;
};

/// Nothing unless the power of each PDO is known.
std::optional<Greatest> FindGreatest(const CComponentView& component, PdoSide side, const CReporter& reporter) {
  if (!HasAllPdos(component, side)) return std::nullopt;
  Greatest greatest;
  for (const CPdoView& pdo : component.Pdos(side)) {
    const std::optional<std::uint64_t> power = pdo.GreatestPower();
    const std::optional<std::uint64_t> step = pdo.PowerStep();
    if (!power || !step || IsDoubtful(pdo, reporter)) return std::nullopt;
    if (*power >= greatest.power) greatest = {*power, *step};
  }
  return greatest;
}

void CheckSide(const CComponentView& component, PdoSide side, CReporter& reporter) {
  const std::string_view name = RatingName(side);
  const std::optional<std::uint64_t> rating = component.Number(name);
  const std::optional<Greatest> greatest = FindGreatest(component, side, reporter);
  if (!rating || !greatest || *rating <= greatest->power + greatest->step) return;
  reporter.Add(*component.Find(name), std::string(name)
                                          .append(" is ")
                                          .append(Watts(*rating))
                                          .append(", but no ")
                                          .append(SideName(side))
                                          .append(" PDO is of more than ")
                                          .append(Watts(greatest->power)));
}

}  // namespace

void CheckRatingAbovePdos(const CComponentView& component, CReporter& reporter) {
  CheckSide(component, PdoSide::Source, reporter);
  CheckSide(component, PdoSide::Sink, reporter);
}

}  // namespace vifanalysis

#include "power/Units.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vifanalysis {

namespace {

/// Whether the PDO is of more power than the rating, by more than one step of its numbers.
bool IsAbove(const CPdoView& pdo, std::uint64_t rating) {
  const std::optional<std::uint64_t> power = pdo.GreatestPower();
  const std::optional<std::uint64_t> step = pdo.PowerStep();
  return !pdo.IsAugmented() && power && step && *power > *step && *power - *step > rating;
}

std::vector<const CPdoView*> FindAbove(const std::vector<CPdoView>& pdos, std::uint64_t rating,
                                       const CReporter& reporter) {
  std::vector<const CPdoView*> above;
  for (const CPdoView& pdo : pdos) {
    if (!IsDoubtful(pdo, reporter) && IsAbove(pdo, rating)) above.push_back(&pdo);
  }
  return above;
}

std::string RatingIs(PdoSide side, std::uint64_t rating) {
  return std::string(RatingName(side)).append(" is ").append(Watts(rating));
}

/// Where several PDOs are above the rating, the rating is more likely to be wrong.
void BlameRating(const FoundField& blamed, const std::string& ratingIs, const std::vector<const CPdoView*>& above,
                 CReporter& reporter) {
  std::uint64_t greatest = 0;
  for (const CPdoView* pdo : above) greatest = std::max(greatest, pdo->GreatestPower().value_or(0));
  reporter.Add(blamed, std::string(ratingIs)
                           .append(", but ")
                           .append(std::to_string(above.size()))
                           .append(" ")
                           .append(SideName(above.front()->Side()))
                           .append(" PDOs are of more, up to ")
                           .append(Watts(greatest)));
}

void CheckSide(const CComponentView& component, PdoSide side, CReporter& reporter) {
  const std::optional<std::uint64_t> rating = component.Number(RatingName(side));
  if (!rating) return;
  const std::vector<const CPdoView*> above = FindAbove(component.Pdos(side), *rating, reporter);
  const std::string ratingIs = RatingIs(side, *rating);
  if (above.size() > 1) {
    BlameRating(*component.Find(RatingName(side)), ratingIs, above, reporter);
  } else if (!above.empty()) {
    const CPdoView& pdo = *above.front();
    reporter.Add(pdo.PowerField(), "the PDO is of " + Watts(pdo.GreatestPower().value_or(0)) + ", but " + ratingIs);
  }
}

}  // namespace

void CheckPdoAboveRating(const CComponentView& component, CReporter& reporter) {
  CheckSide(component, PdoSide::Source, reporter);
  CheckSide(component, PdoSide::Sink, reporter);
}

}  // namespace vifanalysis

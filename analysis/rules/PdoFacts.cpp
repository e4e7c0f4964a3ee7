#include "rules/PdoFacts.h"

#include <algorithm>
#include <iterator>

namespace vifanalysis {

std::string_view SupplyName(Supply supply) {
  switch (supply) {
    case Supply::Fixed: return "fixed";
    case Supply::Battery: return "battery";
    case Supply::Variable: return "variable";
    case Supply::Programmable: return "programmable";
    case Supply::EprAdjustable: return "EPR AVS";
    case Supply::SprAdjustable: return "SPR AVS";
    case Supply::Unknown: break;
  }
  return {};
}

bool HasAllPdos(const CComponentView& component, PdoSide side) {
  const std::size_t listed = component.Pdos(side).size();
  const std::optional<std::uint64_t> count = component.Number(CountName(side));
  if (listed == 0 || component.HasUnnumbered(PdoGroup(side))) return false;
  return count ? *count <= listed : !component.Has(CountName(side));
}

bool IsDoubtful(const CPdoView& pdo, const CReporter& reporter) {
  constexpr std::string_view rules[] = {"first-pdo-not-5v", "pdo-limits", "pdo-order", "pdo-fields-for-type"};
  return std::any_of(std::begin(rules), std::end(rules),
                     [&](std::string_view rule) { return reporter.HasFound(rule, pdo); });
}

bool ContradictsRating(const CComponentView& component, const CPdoView& pdo, const CReporter& reporter) {
  constexpr std::string_view rule = "pdo-above-rating";
  const FoundField* rating = component.Find(RatingName(pdo.Side()));
  return reporter.HasFound(rule, pdo) || (rating != nullptr && reporter.HasFound(rule, *rating));
}

}  // namespace vifanalysis

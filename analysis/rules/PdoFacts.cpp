#include "rules/PdoFacts.h"

#include <analysis/Vocabulary.h>

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
  return listed != 0 && component.Number(CountName(side)).value_or(0) <= listed;
}

bool IsImproper(const FoundField& field, const CReporter& reporter) {
  return reporter.HasFound("unanswered", field) || reporter.HasFound("value-out-of-range", field);
}

bool IsDoubtful(const CPdoView& pdo, const CReporter& reporter) {
  constexpr std::string_view rules[] = {"unanswered", "value-out-of-range", "first-pdo-not-5v",
                                        "pdo-limits", "pdo-order",          "pdo-fields-for-type"};
  return std::any_of(std::begin(rules), std::end(rules),
                     [&](std::string_view rule) { return reporter.HasFound(rule, pdo); });
}

}  // namespace vifanalysis

#include "power/Units.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kThreshold = "Src_PD_OCP_OC_Threshold";
constexpr std::uint64_t kUnit = 10;  // mA

void CheckPdo(const CPdoView& pdo, CReporter& reporter) {
  const std::optional<std::uint64_t> threshold = pdo.Number(kThreshold);
  const std::optional<std::uint64_t>& current = pdo.Quantities().current;
  if (!threshold || !current || *threshold >= (*current + kUnit - 1) / kUnit) return;
  reporter.Add(*pdo.Find(kThreshold), std::string("over-current protection acts from ")
                                          .append(Amperes(*threshold * kUnit))
                                          .append(" (")
                                          .append(kThreshold)
                                          .append(" ")
                                          .append(std::to_string(*threshold))
                                          .append("), below the ")
                                          .append(Amperes(*current))
                                          .append(" that the PDO offers"));
}

}  // namespace

void CheckOcpBelowRating(const CComponentView& component, CReporter& reporter) {
  if (component.MayBeNo("PD_OC_Protection")) return;
  for (const CPdoView& pdo : component.Pdos(PdoSide::Source)) {
    if (!IsDoubtful(pdo, reporter) && !ContradictsRating(component, pdo, reporter)) CheckPdo(pdo, reporter);
  }
}

}  // namespace vifanalysis

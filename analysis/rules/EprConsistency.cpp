#include "power/Units.h"
#include "rules/PdoFacts.h"
#include "rules/RuleFunctions.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::uint64_t kHighestWithoutEpr = 21'000;  // mV
constexpr std::uint64_t kMostWithoutEpr = 100'000;    // mW
constexpr std::uint64_t kRevision2 = 1;

/// A PDO whose voltage is not known may be one.
bool MayBeEpr(const CPdoView& pdo) {
  return pdo.GetSupply() == Supply::EprAdjustable ||
         pdo.HighestVoltage().value_or(kHighestWithoutEpr + 1) > kHighestWithoutEpr;
}

bool HasDoubtfulPdo(const CComponentView& component, PdoSide side, const CReporter& reporter) {
  const std::vector<CPdoView>& pdos = component.Pdos(side);
  return std::any_of(pdos.begin(), pdos.end(), [&](const CPdoView& pdo) { return IsDoubtful(pdo, reporter); });
}

void CheckHasEprPdo(const CComponentView& component, PdoSide side, CReporter& reporter) {
  const std::vector<CPdoView>& pdos = component.Pdos(side);
  if (!HasAllPdos(component, side) || std::any_of(pdos.begin(), pdos.end(), MayBeEpr)) return;
  if (HasDoubtfulPdo(component, side, reporter)) return;
  reporter.Add(*component.Find(EprName(side)), std::string(EprName(side))
                                                   .append(" is YES, but no ")
                                                   .append(SideName(side))
                                                   .append(" PDO is above 21 V or an EPR AVS"));
}

void CheckRating(const CComponentView& component, PdoSide side, CReporter& reporter) {
  const std::optional<std::uint64_t> rating = component.Number(RatingName(side));
  if (!rating || *rating <= kMostWithoutEpr || HasDoubtfulPdo(component, side, reporter)) return;
  if (reporter.HasFound("rating-above-pdos", *component.Find(RatingName(side)))) return;
  reporter.Add(*component.Find(EprName(side)), std::string(EprName(side))
                                                   .append(" is NO, but ")
                                                   .append(RatingName(side))
                                                   .append(" is ")
                                                   .append(Watts(*rating))
                                                   .append(", more than 100 W"));
}

void CheckSide(const CComponentView& component, PdoSide side, CReporter& reporter) {
  if (component.IsYes(EprName(side))) CheckHasEprPdo(component, side, reporter);
  if (component.IsNo(EprName(side))) CheckRating(component, side, reporter);
}

/// A port of revision 2 with features of revision 3 is left to pd3-feature-in-pd2, and fields that name different
/// revisions to pd-revision-pair.
void CheckRevision(const CComponentView& component, CReporter& reporter) {
  const bool hasEpr = component.IsYes(EprName(PdoSide::Source)) || component.IsYes(EprName(PdoSide::Sink));
  if (!hasEpr) return;
  const std::optional<std::uint64_t> major = component.Number("PD_Spec_Revision_Major");
  const std::optional<std::uint64_t> minor = component.Number("PD_Spec_Revision_Minor");
  if (!major || !minor || *major > 3 || (*major == 3 && *minor >= 1)) return;
  const std::optional<std::uint64_t> code = component.Number("PD_Specification_Revision");
  if (code && (*code == kRevision2 || *code + 1 != *major)) return;
  reporter.Add(*component.Find(*major == 3 ? "PD_Spec_Revision_Minor" : "PD_Spec_Revision_Major"),
               std::string("EPR came with PD revision 3.1, but PD_Spec_Revision is ")
                   .append(std::to_string(*major))
                   .append(".")
                   .append(std::to_string(*minor)));
}

}  // namespace

void CheckEprConsistency(const CComponentView& component, CReporter& reporter) {
  CheckSide(component, PdoSide::Source, reporter);
  CheckSide(component, PdoSide::Sink, reporter);
  CheckRevision(component, reporter);
}

}  // namespace vifanalysis

// Checks whether modes are declared where there must be some.
#include "Checks.h"
#include "VifGroups.h"

namespace suite {

namespace {

/// What the component lacks; empty if nothing.
std::string ModesLacking(const Fields& component) {
  const Groups svids = SplitByGroup(component, eVifLocSopSvid);
  if (svids.empty()) return "modal operation is supported, but no SOP SVID is described";
  for (const auto& [svid, fields] : svids) {
    if (!SplitByGroup(fields, eVifLocSopSvidMode).empty()) return {};
  }
  return "modal operation is supported, but no SOP SVID has a mode";
}

}  // namespace

Verdict CheckModes(const CVendorInfoFile& vif) {
  Verdict verdict;
  for (const auto& [component, fields] : Components(vif)) {
    const NumberFound modal = FindNumber(fields, "Modal_Operation_Supported_SOP");
    if (modal.isMissing || modal.number == 0U) continue;
    ++verdict.examined;
    const std::string problem = modal.number ? ModesLacking(fields) : modal.problem;
    if (!problem.empty()) verdict.failures.push_back(GroupText("Component", component) + ": " + problem);
  }
  return verdict;
}

}  // namespace suite

// Checks whether there are as many groups as the VIF declares.
#include "Checks.h"
#include "VifGroups.h"

namespace suite {

namespace {

/// The field that says how many groups there must be, and the groups that are counted.
struct Count {
  const char* field;
  EVifLocation location;
  const char* text;  ///< "source PDOs"
};

/// \param fields those of the group that contains the count and the groups
/// \param where that group's name
void Compare(const Count& count, const Fields& fields, const std::string& where, Verdict& verdict) {
  ++verdict.examined;
  const NumberFound said = FindNumber(fields, count.field);
  const std::size_t groups = SplitByGroup(fields, count.location).size();
  if (said.number == groups) return;
  const std::string says =
      said.number ? std::string(count.field) + " is " + std::to_string(*said.number) : said.problem;
  verdict.failures.push_back(where + ": " + says + ", but the number of " + count.text + " is " +
                             std::to_string(groups));
}

/// A component that has neither the count nor a group is not a source, or not a sink, and is skipped.
Verdict CheckPdoCounts(const CVendorInfoFile& vif, const Count& count) {
  Verdict verdict;
  for (const auto& [component, fields] : Components(vif)) {
    if (FindNumber(fields, count.field).isMissing && SplitByGroup(fields, count.location).empty()) continue;
    Compare(count, fields, GroupText("Component", component), verdict);
  }
  return verdict;
}

}  // namespace

Verdict CheckSourcePdoCounts(const CVendorInfoFile& vif) {
  return CheckPdoCounts(vif, {"Num_Src_PDOs", eVifLocSrcPdo, "source PDOs"});
}

Verdict CheckSinkPdoCounts(const CVendorInfoFile& vif) {
  return CheckPdoCounts(vif, {"Num_Snk_PDOs", eVifLocSnkPdo, "sink PDOs"});
}

Verdict CheckEndpointCounts(const CVendorInfoFile& vif) {
  constexpr Count count = {"USB4_Num_PCIe_Endpoints", eVifLocRouterPcie, "PCIe endpoints"};
  Verdict verdict;
  for (const auto& [router, fields] : Routers(vif)) Compare(count, fields, GroupText("Router", router), verdict);
  return verdict;
}

}  // namespace suite

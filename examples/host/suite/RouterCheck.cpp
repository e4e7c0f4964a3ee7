// Checks whether the USB4 routers that ports name exist.
#include "Checks.h"
#include "VifGroups.h"

namespace suite {

Verdict CheckRouterIndexes(const CVendorInfoFile& vif) {
  Verdict verdict;
  const Groups routers = Routers(vif);
  for (const auto& [component, fields] : Components(vif)) {
    const NumberFound index = FindNumber(fields, "USB4_Router_Index");
    if (index.isMissing) continue;
    ++verdict.examined;
    const std::string where = GroupText("Component", component) + ": ";
    if (!index.number) {
      verdict.failures.push_back(where + index.problem);
    } else if (!routers.contains(*index.number)) {
      verdict.failures.push_back(where + "USB4_Router_Index is " + std::to_string(*index.number) +
                                 ", but there is no such router");
    }
  }
  return verdict;
}

}  // namespace suite

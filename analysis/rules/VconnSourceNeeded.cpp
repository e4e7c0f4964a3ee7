#include "files/Sentence.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <vector>

namespace vifanalysis {

namespace {

std::vector<std::string_view> FieldsThatNeedVconn(const CComponentView& component) {
  std::vector<std::string_view> names;
  for (const std::string_view name :
       {"VCONN_Swap_To_On_Supported", "VCONN_Swap_To_Off_Supported", "SOP_P_Capable", "SOP_PP_Capable"}) {
    if (component.IsYes(name)) names.push_back(name);
  }
  return names;
}

}  // namespace

void CheckVconnSourceNeeded(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view vconn = "Type_C_Sources_VCONN";
  if (IsCable(component)) return;
  const std::vector<std::string_view> names = FieldsThatNeedVconn(component);
  if (component.IsNo(vconn) && !names.empty()) {
    // Where several fields agree, the one that they contradict is more likely to be wrong.
    const FoundField& blamed = *component.Find(names.size() == 1 ? names.front() : vconn);
    reporter.Add(blamed, Listed(names) + (names.size() == 1 ? " is YES" : " are YES") + ", but " + std::string(vconn) +
                             " is NO");
  }
  if (component.IsYes("SOP_PP_Capable") && component.IsNo("SOP_P_Capable"))
    reporter.Add(*component.Find("SOP_PP_Capable"), "SOP_PP_Capable is YES, but SOP_P_Capable is NO");
}

}  // namespace vifanalysis

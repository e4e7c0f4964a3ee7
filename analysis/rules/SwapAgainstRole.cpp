#include "files/Sentence.h"
#include "rules/FieldWords.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

constexpr std::string_view kTrySource = "Type_C_Implements_Try_SRC";
constexpr std::string_view kTrySink = "Type_C_Implements_Try_SNK";

using Names = std::vector<std::string_view>;

Names SelectYes(const CComponentView& component, std::initializer_list<std::string_view> names) {
  Names selected;
  for (const std::string_view name : names) {
    if (component.IsYes(name)) selected.push_back(name);
  }
  return selected;
}

std::string AreYes(const Names& names) { return Listed(names) + (names.size() == 1 ? " is YES" : " are YES"); }

/// Where several fields agree, the one that they contradict is more likely to be wrong.
const FoundField& Blamed(const CComponentView& component, const Names& names, std::string_view contradicted) {
  return *component.Find(names.size() == 1 ? names.front() : contradicted);
}

void CheckPowerRoleSwaps(const CComponentView& component, PortRole role, CReporter& reporter) {
  const Names names =
      SelectYes(component, {"Accepts_PR_Swap_As_Src", "Accepts_PR_Swap_As_Snk", "Requests_PR_Swap_As_Src",
                            "Requests_PR_Swap_As_Snk", "FR_Swap_Supported_As_Initial_Sink"});
  if (names.empty()) return;
  reporter.Add(Blamed(component, names, "PD_Port_Type"),
               "a " + std::string(RoleName(role)) + " port cannot change its power role, but " + AreYes(names));
}

void CheckTryFields(const CComponentView& component, CReporter& reporter) {
  const Names names = SelectYes(component, {kTrySource, kTrySink});
  if (names.empty()) return;
  reporter.Add(Blamed(component, names, "Type_C_State_Machine"),
               AreYes(names) + ", but " + NameAndValue(component, "Type_C_State_Machine") + " is not DRP");
}

}  // namespace

void CheckSwapAgainstRole(const CComponentView& component, CReporter& reporter) {
  const std::optional<PortRole> role = SettledRole(component, reporter);
  if (role == PortRole::ConsumerOnly || role == PortRole::ProviderOnly) CheckPowerRoleSwaps(component, *role, reporter);
  const std::optional<StateMachine> machine = SettledStateMachine(component, reporter);
  if (machine == StateMachine::Source || machine == StateMachine::Sink) {
    CheckTryFields(component, reporter);
  } else if (component.IsYes(kTrySource) && component.IsYes(kTrySink)) {
    reporter.Add(*component.Find(kTrySink), std::string(kTrySource) + " and " + std::string(kTrySink) +
                                                " are both YES, but a port can prefer only one role");
  }
}

}  // namespace vifanalysis

#include "rules/FieldWords.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

#include <string_view>

namespace vifanalysis {

void CheckPowerSourceRole(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view name = "Type_C_Power_Source";
  constexpr std::uint64_t fromPort = 1;
  constexpr std::uint64_t fromBoth = 2;
  const std::uint64_t source = component.Number(name).value_or(0);
  if (SettledRole(component, reporter) == PortRole::ProviderOnly && (source == fromPort || source == fromBoth)) {
    reporter.Add(*component.Find(name),
                 "a Provider Only port is never powered over itself, but " + FieldIs(component, name));
  } else if (source == fromPort && component.IsYes("Unconstrained_Power")) {
    reporter.Add(*component.Find(name),
                 FieldIs(component, "Unconstrained_Power") + ", but " + FieldIs(component, name));
  }
}

}  // namespace vifanalysis

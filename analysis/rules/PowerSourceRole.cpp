#include "rules/RuleFunctions.h"
#include "rules/SoundFields.h"

#include <string_view>

namespace vifanalysis {

void CheckPowerSourceRole(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view name = "Type_C_Power_Source";
  constexpr std::uint64_t providerOnly = 3;
  constexpr std::uint64_t fromPort = 1;
  constexpr std::uint64_t fromBoth = 2;
  const std::uint64_t source = SoundNumber(component, name, reporter).value_or(0);
  if (PdRole(component) == providerOnly && (source == fromPort || source == fromBoth)) {
    reporter.Add(*component.Find(name),
                 "a Provider Only port is never powered over itself, but " + Says(component, name));
  } else if (source == fromPort && component.IsYes("Unconstrained_Power")) {
    reporter.Add(*component.Find(name), Says(component, "Unconstrained_Power") + ", but " + Says(component, name));
  }
}

}  // namespace vifanalysis

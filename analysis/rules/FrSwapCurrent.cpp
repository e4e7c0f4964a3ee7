#include "rules/FieldWords.h"
#include "rules/PortRole.h"
#include "rules/RuleFunctions.h"

namespace vifanalysis {

void CheckFrSwapCurrent(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view supported = "FR_Swap_Supported_As_Initial_Sink";
  constexpr std::string_view current = "FR_Swap_Type_C_Current_Capability_As_Initial_Sink";
  const std::optional<std::uint64_t> number = component.Number(current);
  if (!number) return;
  const bool isMissing = component.IsYes(supported) && *number == 0;
  const bool isLeftOver = component.IsNo(supported) && *number != 0;
  if (!isMissing && !isLeftOver) return;
  reporter.Add(*component.Find(current), std::string(supported) + (isMissing ? " is YES, but " : " is NO, but ") +
                                             std::string(current) + " is " +
                                             NumberInWords(component.File(), current, *number));
}

}  // namespace vifanalysis

#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

namespace vifanalysis {

void CheckCaptivePlug(const CComponentView& component, CReporter& reporter) {
  constexpr std::uint64_t receptacle = 2;
  constexpr std::uint64_t plug = 3;
  const std::optional<std::uint64_t> type = component.Number("ID_Header_Connector_Type_SOP");
  const bool isCaptive = component.IsYes("Captive_Cable");
  if (type != (isCaptive ? receptacle : plug) || (!isCaptive && !component.IsNo("Captive_Cable"))) return;
  const CVifView& file = component.File();
  const FoundField& blamed = *component.Find("ID_Header_Connector_Type_SOP");
  reporter.Add(blamed, FieldIs(*component.Find("Captive_Cable"), file) + ", but " + FieldIs(blamed, file) +
                           (isCaptive ? "; a captive cable ends in a plug" : "; a port of its own is a receptacle"));
}

}  // namespace vifanalysis

#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

namespace vifanalysis {

void CheckCaptivePlug(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view connector = "ID_Header_Connector_Type_SOP";
  constexpr std::uint64_t receptacle = 2;
  constexpr std::uint64_t plug = 3;
  const std::optional<std::uint64_t> type = component.Number(connector);
  const bool isCaptive = component.IsYes("Captive_Cable");
  if (type != (isCaptive ? receptacle : plug) || (!isCaptive && !component.IsNo("Captive_Cable"))) return;
  reporter.Add(*component.Find(connector),
               FieldIs(component, "Captive_Cable") + ", but " + FieldIs(component, connector) +
                   (isCaptive ? "; a captive cable ends in a plug" : "; a port of its own is a receptacle"));
}

}  // namespace vifanalysis

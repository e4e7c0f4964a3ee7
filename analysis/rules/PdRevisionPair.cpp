#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>

namespace vifanalysis {

void CheckPdRevisionPair(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view code = "PD_Specification_Revision";
  constexpr std::string_view major = "PD_Spec_Revision_Major";
  const std::optional<std::uint64_t> coded = component.Number(code);
  const std::optional<std::uint64_t> written = component.Number(major);
  if (!coded || !written || *coded + 1 == *written) return;
  reporter.Add(*component.Find(major), std::string(code)
                                           .append(" ")
                                           .append(std::to_string(*coded))
                                           .append(" stands for revision ")
                                           .append(std::to_string(*coded + 1))
                                           .append(", but ")
                                           .append(FieldIs(component, major)));
}

}  // namespace vifanalysis

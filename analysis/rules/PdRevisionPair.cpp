#include "rules/RuleFunctions.h"
#include "rules/SoundFields.h"

#include <string>
#include <string_view>

namespace vifanalysis {

void CheckPdRevisionPair(const CComponentView& component, CReporter& reporter) {
  constexpr std::string_view code = "PD_Specification_Revision";
  constexpr std::string_view major = "PD_Spec_Revision_Major";
  constexpr std::uint64_t greatest = 2;  // what a larger number would stand for is not known
  const std::optional<std::uint64_t> coded = SoundNumber(component, code, reporter);
  const std::optional<std::uint64_t> written = SoundNumber(component, major, reporter);
  if (!coded || !written || *coded > greatest || *coded + 1 == *written) return;
  reporter.Add(*component.Find(major), std::string(code)
                                           .append(" ")
                                           .append(std::to_string(*coded))
                                           .append(" stands for revision ")
                                           .append(std::to_string(*coded + 1))
                                           .append(", but ")
                                           .append(Says(component, major)));
}

}  // namespace vifanalysis

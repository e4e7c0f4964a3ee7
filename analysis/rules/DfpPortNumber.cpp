#include "rules/FieldWords.h"
#include "rules/RuleFunctions.h"

#include <map>
#include <string>
#include <string_view>

namespace vifanalysis {

void CheckDfpPortNumber(const CVifView& file, CReporter& reporter) {
  constexpr std::string_view name = "DFP_VDO_Port_Number";
  constexpr std::uint64_t greatest = 31;
  std::map<std::uint64_t, std::uint64_t> components;  // the first with each number
  for (const CComponentView& component : file.Components()) {
    const std::optional<std::uint64_t> number = component.Number(name);
    if (!number) continue;
    const auto [first, isNew] = components.emplace(*number, component.Index());
    if (*number > greatest) {
      reporter.Add(*component.Find(name), FieldIs(component, name) + ", but the port number has five bits: 0 to 31");
    } else if (!isNew) {
      reporter.Add(*component.Find(name),
                   FieldIs(component, name) + ", the same as in Component " + std::to_string(first->second));
    }
  }
}

}  // namespace vifanalysis

#include "rules/RoleSide.h"
#include "rules/RuleFunctions.h"

#include <string>

namespace vifanalysis {

namespace {

/// Such as "a DRP port needs PD_Power_As_Sink, but it is missing".
std::string Need(PortRole role, std::string_view what, std::string_view why) {
  return std::string("a ").append(RoleName(role)).append(" port needs ").append(what).append(", but ").append(why);
}

void CheckSide(const CComponentView& component, PortRole role, PdoSide side, CReporter& reporter) {
  const FoundField& type = *component.Find("PD_Port_Type");
  const FoundField* count = component.Find(CountName(side));
  if (!HasPdoGroups(component, side) && (count == nullptr || component.Number(CountName(side)) == 0U)) {
    reporter.Add(count != nullptr ? *count : type, Need(role, std::string(SideName(side)) + " PDOs", "there is none"));
  }
  if (!component.Has(RatingName(side))) reporter.Add(type, Need(role, RatingName(side), "it is missing"));
}

}  // namespace

void CheckRoleIncomplete(const CComponentView& component, CReporter& reporter) {
  const std::optional<PortRole> role = SettledRole(component, reporter);
  if (!role) return;
  for (const PdoSide side : {PdoSide::Source, PdoSide::Sink}) {
    if (HasSide(*role, side)) CheckSide(component, *role, side, reporter);
  }
}

}  // namespace vifanalysis

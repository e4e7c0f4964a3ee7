#include "files/Sentence.h"
#include "rules/RoleSide.h"
#include "rules/RuleFunctions.h"

#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

/// What a port declares of a side.
struct Leftover {
  const FoundField* blamed = nullptr;   ///< null where there are only PDOs without a number
  std::vector<std::string_view> words;  ///< such as "PD_Power_As_Source" and "source PDOs"
};

Leftover FindLeftover(const CComponentView& component, PdoSide side) {
  Leftover leftover;
  const auto add = [&](const FoundField* field, std::string_view what) {
    if (leftover.blamed == nullptr) leftover.blamed = field;
    leftover.words.push_back(what);
  };
  for (const std::string_view name : {RatingName(side), CountName(side)}) {
    if (component.Number(name).value_or(0) != 0) add(component.Find(name), name);
  }
  if (HasPdoGroups(component, side)) {
    const std::vector<CPdoView>& pdos = component.Pdos(side);
    add(pdos.empty() ? nullptr : pdos.front().FirstField(), side == PdoSide::Source ? "source PDOs" : "sink PDOs");
  }
  return leftover;
}

void CheckSide(const CComponentView& component, PdoSide side, const std::string& why, CReporter& reporter) {
  const Leftover leftover = FindLeftover(component, side);
  if (leftover.words.empty()) return;
  const std::string message = why + ", but the port declares " + Listed(leftover.words);
  if (leftover.blamed != nullptr) {
    reporter.Add(*leftover.blamed, message);
  } else {
    reporter.Add(component, message);
  }
}

}  // namespace

void CheckRoleLeftover(const CComponentView& component, CReporter& reporter) {
  const std::optional<PortRole> role = RoleOf(component);
  for (const PdoSide side : {PdoSide::Source, PdoSide::Sink}) {
    if (component.IsNo("USB_PD_Support")) {
      CheckSide(component, side, "USB_PD_Support is NO", reporter);
    } else if (role && *role != PortRole::EMarker && !HasSide(*role, side)) {
      CheckSide(component, side,
                "a " + std::string(RoleName(*role)) + " port has no " + std::string(SideName(side)) + " side",
                reporter);
    }
  }
}

}  // namespace vifanalysis

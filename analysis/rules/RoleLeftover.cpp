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
  const FoundField* blamed = nullptr;   ///< the first; null where there is nothing
  std::vector<std::string_view> words;  ///< such as "PD_Power_As_Source" and "source PDOs"
};

void AddLeftover(const CComponentView& component, PdoSide side, Leftover& leftover) {
  const auto add = [&](const FoundField* field, std::string_view what) {
    if (leftover.blamed == nullptr) leftover.blamed = field;
    leftover.words.push_back(what);
  };
  for (const std::string_view name : {RatingName(side), CountName(side)}) {
    if (component.Number(name).value_or(0) != 0) add(component.Find(name), name);
  }
  if (HasPdoGroups(component, side)) {
    const FoundField* first = component.AllGroups(PdoGroup(side)).front().FirstField();
    add(first, side == PdoSide::Source ? "source PDOs" : "sink PDOs");
  }
}

void Report(const Leftover& leftover, const std::string& why, CReporter& reporter) {
  if (leftover.blamed == nullptr) return;
  reporter.Add(*leftover.blamed, why + ", but the port declares " + Listed(leftover.words));
}

}  // namespace

void CheckRoleLeftover(const CComponentView& component, CReporter& reporter) {
  const std::optional<PortRole> role = SettledRole(component, reporter);
  Leftover withoutPd;
  for (const PdoSide side : {PdoSide::Source, PdoSide::Sink}) {
    if (component.IsNo("USB_PD_Support")) {
      AddLeftover(component, side, withoutPd);
    } else if (role && *role != PortRole::EMarker && !HasSide(*role, side)) {
      Leftover leftover;
      AddLeftover(component, side, leftover);
      Report(leftover, "a " + std::string(RoleName(*role)) + " port has no " + std::string(SideName(side)) + " side",
             reporter);
    }
  }
  // That a USB4 port supports PD is for usb4-needs to say.
  if (!component.IsYes("USB4_Supported")) Report(withoutPd, "USB_PD_Support is NO", reporter);
}

}  // namespace vifanalysis

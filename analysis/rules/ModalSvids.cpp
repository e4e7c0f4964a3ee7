#include "rules/RuleFunctions.h"
#include "rules/SoundFields.h"

#include <analysis/Text.h>
#include <analysis/Vocabulary.h>

#include <map>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::string_view kModal = "Modal_Operation_Supported_SOP";
constexpr std::string_view kMostSvids = "Num_SVIDs_Max_SOP";

void CheckModal(const CComponentView& component, CReporter& reporter) {
  const std::size_t svids = component.Groups(eVifLocSopSvid).size();
  if (svids != 0 || !(IsMissing(component, kMostSvids) || component.Number(kMostSvids) == 0U)) return;
  reporter.Add(*component.Find(kModal), Says(component, kModal) + ", but the port lists no SVID");
}

void CheckNotModal(const CComponentView& component, CReporter& reporter) {
  const std::size_t svids = component.Groups(eVifLocSopSvid).size();
  const bool mayHaveSvids = SoundNumber(component, kMostSvids, reporter).value_or(0) > 0;
  if (svids == 0 && !mayHaveSvids) return;
  reporter.Add(*component.Find(kModal),
               Says(component, kModal) + ", but " +
                   (svids > 0 ? "the port lists " + Amount(svids, "SVID") : Says(component, kMostSvids)));
}

/// What is declared as fixed has the same number of entries at all times.
void CheckFixed(const CGroupView& group, std::string_view fixed, std::string_view fewest, std::string_view most,
                CReporter& reporter) {
  const std::optional<std::uint64_t> minimum = SoundNumber(group, fewest, reporter);
  const std::optional<std::uint64_t> maximum = SoundNumber(group, most, reporter);
  if (!group.IsYes(fixed) || !minimum || !maximum || *minimum == *maximum) return;
  reporter.Add(*group.Find(fixed),
               Says(group, fixed) + ", but the numbers differ: " + Says(group, fewest) + ", " + Says(group, most));
}

/// What is wrong with an SVID; empty when it may have modes.
std::string_view WhyNoModes(std::uint64_t svid) {
  if (svid == 0) return ", which belongs to no vendor or standard";
  return svid == 0xFF00 ? ", which is USB PD itself and has no modes" : "";
}

void CheckSvids(const CComponentView& component, CReporter& reporter) {
  std::map<std::uint64_t, std::uint64_t> places;
  for (const CGroupView& group : component.Groups(eVifLocSopSvid)) {
    CheckFixed(group, "SVID_Modes_Fixed_SOP", "SVID_Num_Modes_Min_SOP", "SVID_Num_Modes_Max_SOP", reporter);
    const std::optional<std::uint64_t> svid = SoundNumber(group, "SVID_SOP", reporter);
    if (!svid) continue;
    const std::string says = "SVID_SOP is " + QuantityText({*svid, Unit::Identifier});
    const auto [first, isNew] = places.emplace(*svid, group.Index());
    if (!WhyNoModes(*svid).empty()) {
      reporter.Add(*group.Find("SVID_SOP"), says + std::string(WhyNoModes(*svid)));
    } else if (!isNew) {
      reporter.Add(*group.Find("SVID_SOP"), says + ", the same as in SOP SVID " + std::to_string(first->second));
    }
  }
}

}  // namespace

void CheckModalSvids(const CComponentView& component, CReporter& reporter) {
  if (component.IsYes(kModal)) CheckModal(component, reporter);
  if (component.IsNo(kModal)) CheckNotModal(component, reporter);
  CheckFixed(component, "SVID_Fixed_SOP", "Num_SVIDs_Min_SOP", kMostSvids, reporter);
  CheckSvids(component, reporter);
}

}  // namespace vifanalysis

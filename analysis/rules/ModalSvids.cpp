#include "rules/FieldWords.h"
#include "rules/MissingFields.h"
#include "rules/RuleFunctions.h"

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
  if (component.HasGroups(eVifLocSopSvid)) return;
  if (!IsMissing(component, kMostSvids) && component.Number(kMostSvids) != 0U) return;
  reporter.Add(*component.Find(kModal), FieldIs(component, kModal) + ", but the port lists no SVID");
}

/// "the port lists 2 SVIDs"; without the number where an SVID has none, because it may be several in one.
std::string Listing(const CComponentView& component) {
  if (component.HasUnnumbered(eVifLocSopSvid)) return "the port lists SVIDs";
  return "the port lists " + Amount(component.Groups(eVifLocSopSvid).size(), "SVID");
}

void CheckNotModal(const CComponentView& component, CReporter& reporter) {
  const bool listsSvids = component.HasGroups(eVifLocSopSvid);
  if (!listsSvids && component.Number(kMostSvids).value_or(0) == 0) return;
  reporter.Add(*component.Find(kModal), FieldIs(component, kModal) + ", but " +
                                            (listsSvids ? Listing(component) : FieldIs(component, kMostSvids)));
}

/// A field that says that a number never changes, and the two that say what it is.
struct FixedNumber {
  std::string_view isFixed;
  std::string_view fewest;
  std::string_view most;
};

constexpr FixedNumber kSvids = {"SVID_Fixed_SOP", "Num_SVIDs_Min_SOP", kMostSvids};
constexpr FixedNumber kModes = {"SVID_Modes_Fixed_SOP", "SVID_Num_Modes_Min_SOP", "SVID_Num_Modes_Max_SOP"};

/// A minimum above its maximum is left to count-mismatch.
void CheckFixed(const CGroupView& group, const FixedNumber& number, const CVifView& file, CReporter& reporter) {
  const std::optional<std::uint64_t> fewest = group.Number(number.fewest);
  const std::optional<std::uint64_t> most = group.Number(number.most);
  if (!group.IsYes(number.isFixed) || !fewest || !most || *fewest >= *most) return;
  reporter.Add(*group.Find(number.isFixed), FieldIs(group, number.isFixed, file) +
                                                ", but the numbers differ: " + FieldIs(group, number.fewest, file) +
                                                ", " + FieldIs(group, number.most, file));
}

/// What is wrong with an SVID; empty when it may have modes.
std::string_view WhyNoModes(std::uint64_t svid) {
  if (svid == 0) return ", which belongs to no vendor or standard";
  return svid == 0xFF00 ? ", which is USB PD itself and has no modes" : "";
}

void CheckSvids(const CComponentView& component, CReporter& reporter) {
  std::map<std::uint64_t, std::uint64_t> places;
  for (const CGroupView& group : component.AllGroups(eVifLocSopSvid)) {
    CheckFixed(group, kModes, component.File(), reporter);
    const std::optional<std::uint64_t> svid = group.Number("SVID_SOP");
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
  CheckFixed(component, kSvids, component.File(), reporter);
  CheckSvids(component, reporter);
}

}  // namespace vifanalysis

#include "report/Sections.h"

#include <analysis/Vocabulary.h>

#include <algorithm>
#include <cstdint>
#include <optional>

namespace vifanalysis {

namespace {

constexpr EVifLocation kSvidKinds[] = {eVifLocSopSvid, eVifLocCableSvid};

EVifLocation ModeKind(EVifLocation svid) { return svid == eVifLocSopSvid ? eVifLocSopSvidMode : eVifLocCableSvidMode; }

/// Such as "Enter SOP: YES", each with a link to the field.
void WriteContent(CMarkup& page, const PortSide& side, const CGroupView& group, std::string_view except) {
  page.Begin("ul", {{"class", "content"}});
  for (const FoundField* found : side.vif->FieldsOf(group)) {
    const std::string name = found->field.Name();
    if (name == except) continue;
    page.Begin("li");
    page.Text(FieldLabel(name) + ": ");
    WriteLink(page, side, *found, side.vif->Says(group, name));
    page.End();
  }
  page.End();
}

/// The SVID as it is usually written, and as the file describes it.
std::string SvidTitle(const CGroupView& svid, std::string_view name) {
  std::string title = PlaceInWords(svid.Place(), 1);
  const std::optional<std::uint64_t> number = svid.Number(name);
  if (number) title += ": " + QuantityText({*number, Unit::Identifier});
  const FoundField* found = svid.Find(name);
  const std::string_view description = found == nullptr ? "" : found->field.Description();
  return description.empty() ? title : title.append(" \u00b7 ").append(description);
}

void WriteSvid(CMarkup& page, const PortSide& side, const CGroupView& svid) {
  const std::string_view name = svid.Kind() == eVifLocSopSvid ? "SVID_SOP" : "SVID";
  const auto modes = svid.AllGroups(ModeKind(svid.Kind()));
  page.Begin("li");
  page.Element("strong", SvidTitle(svid, name));
  WriteContent(page, side, svid, name);
  if (!modes.empty()) {
    page.Begin("ul", {{"class", "modes"}});
    for (std::size_t i = 0; i < std::min(modes.size(), kMostShown); ++i) {
      page.Begin("li");
      page.Element("strong", PlaceInWords(modes[i].Place(), 2));
      WriteContent(page, side, modes[i], {});
      page.End();
    }
    page.End();
    WriteOthers(page, modes.size(), "mode");
  }
  page.End();
}

void WriteSvids(CMarkup& page, const PortSide& side) {
  if (side.component == nullptr) return;
  page.Begin("div", {{"class", "side"}});
  if (!side.label.empty()) page.Element("h4", side.label);
  for (const EVifLocation kind : kSvidKinds) {
    const auto svids = side.component->AllGroups(kind);
    if (svids.empty()) continue;
    page.Begin("ul", {{"class", "svids"}});
    for (std::size_t i = 0; i < std::min(svids.size(), kMostShown); ++i) WriteSvid(page, side, svids[i]);
    page.End();
    WriteOthers(page, svids.size(), "SVID");
  }
  page.End();
}

bool HasSvids(const PortSide& side) {
  return side.component != nullptr && std::any_of(std::begin(kSvidKinds), std::end(kSvidKinds),
                                                  [&](EVifLocation kind) { return side.component->HasGroups(kind); });
}

}  // namespace

void WriteModes(CMarkup& page, const PortSides& sides) {
  if (std::none_of(sides.begin(), sides.end(), HasSvids)) return;
  page.Element("h3", "Alternate modes");
  page.Begin("div", {{"class", "sides"}});
  for (const PortSide& side : sides) WriteSvids(page, side);
  page.End();
}

}  // namespace vifanalysis

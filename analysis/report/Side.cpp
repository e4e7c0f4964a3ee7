#include "report/Side.h"

#include <analysis/Text.h>

#include <algorithm>

namespace vifanalysis {

namespace {

/// What the side says, with a link to the field.
void WriteCell(CMarkup& page, const Side& side, std::string_view name) {
  page.Begin("td");
  if (side.group != nullptr) {
    const FoundField* found = side.group->Find(name);
    const std::string text = side.vif->Says(*side.group, name);
    if (found == nullptr) {
      page.Element("span", {{"class", "none"}}, "\u2013");
    } else if (side.hasLinks) {
      page.Element("a", {{"href", FieldLink(side.vif->PositionOf(*found))}}, text);
    } else {
      page.Text(text);
    }
  }
  page.End();
}

bool HasFact(const Sides& sides, const Fact& fact) {
  return std::any_of(sides.begin(), sides.end(),
                     [&](const Side& side) { return side.group != nullptr && side.group->Has(fact.name); });
}

bool Differs(const Sides& sides, const Fact& fact) {
  const auto says = [&](const Side& side) {
    return side.group == nullptr ? std::string() : side.vif->Says(*side.group, fact.name);
  };
  return sides.size() == 2 && says(sides.front()) != says(sides.back());
}

}  // namespace

std::string FieldId(std::size_t position) { return "field-" + std::to_string(position); }

std::string FieldLink(std::size_t position) { return '#' + FieldId(position); }

bool WriteFacts(CMarkup& page, const std::string& caption, const Sides& sides, const std::vector<Fact>& facts) {
  if (std::none_of(facts.begin(), facts.end(), [&](const Fact& fact) { return HasFact(sides, fact); })) return false;
  page.Begin("table", {{"class", "facts"}});
  page.Element("caption", caption);
  if (sides.size() == 2) {
    page.Begin("thead");
    page.Begin("tr");
    page.Element("td", "");
    for (const Side& side : sides) page.Element("th", {{"scope", "col"}}, side.label);
    page.End();
    page.End();
  }
  page.Begin("tbody");
  for (const Fact& fact : facts) {
    if (!HasFact(sides, fact)) continue;
    page.Begin("tr", {{"class", Differs(sides, fact) ? "changed" : "same"}});
    page.Element("th", {{"scope", "row"}}, fact.label);
    for (const Side& side : sides) WriteCell(page, side, fact.name);
    page.End();
  }
  page.End();
  page.End();
  return true;
}

std::string FieldLabel(std::string_view name) {
  for (const std::string_view prefix : {"USB4_PCIe_Endpoint_", "USB4_", "SVID_Mode_", "SVID_"}) {
    if (!name.starts_with(prefix)) continue;
    name.remove_prefix(prefix.size());
    break;
  }
  if (name.ends_with("_SOP")) name.remove_suffix(4);
  std::string label(name);
  std::replace(label.begin(), label.end(), '_', ' ');
  return label;
}

void WriteOthers(CMarkup& page, std::size_t count, const std::string& noun) {
  if (count <= kMostShown) return;
  page.Begin("p");
  page.Text("And " + Amount(count - kMostShown, "more " + noun) + ", which are among ");
  page.Element("a", {{"href", "#fields"}}, "all fields");
  page.Text(".");
  page.End();
}

}  // namespace vifanalysis

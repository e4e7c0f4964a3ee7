#include "report/Side.h"

#include <analysis/Text.h>

#include <algorithm>
#include <iterator>

namespace vifanalysis {

namespace {

/// What the side says, with a link to the field.
void WriteSaid(CMarkup& page, const Side& side, std::string_view name) {
  const FoundField* found = side.group == nullptr ? nullptr : side.group->Find(name);
  if (found == nullptr) {
    page.Element("span", {{"class", "none"}}, "\u2013");
    return;
  }
  WriteLink(page, side, *found, side.vif->Says(*side.group, name));
}

bool HasFact(const Sides& sides, const Fact& fact) {
  return std::any_of(sides.begin(), sides.end(),
                     [&](const Side& side) { return side.group != nullptr && side.group->Has(fact.name); });
}

/// Whether the sides declare different values, not only different texts for them.
bool Differs(const Sides& sides, const Fact& fact) {
  const auto value = [&](const Side& side) -> std::string_view {
    const FoundField* found = side.group == nullptr ? nullptr : side.group->Find(fact.name);
    return found == nullptr ? std::string_view() : found->field.Value();
  };
  return value(sides.front()) != value(sides.back());
}

/// The facts of one file, which take less room as a list.
void WriteList(CMarkup& page, const std::string& caption, const Side& side, const std::vector<Fact>& facts) {
  page.Element("h3", caption);
  page.Begin("dl", {{"class", "facts"}});
  for (const Fact& fact : facts) {
    page.Begin("div");
    page.Element("dt", fact.label);
    page.Begin("dd");
    WriteSaid(page, side, fact.name);
    page.End();
    page.End();
  }
  page.End();
}

void WriteTable(CMarkup& page, const std::string& caption, const Sides& sides, const std::vector<Fact>& facts) {
  page.Begin("table", {{"class", "facts"}});
  page.Element("caption", caption);
  page.Begin("thead");
  page.Begin("tr");
  page.Element("td", "");
  for (const Side& side : sides) page.Element("th", {{"scope", "col"}}, side.label);
  page.End();
  page.End();
  page.Begin("tbody");
  for (const Fact& fact : facts) {
    page.Begin("tr", {{"class", Differs(sides, fact) ? "changed" : "same"}});
    page.Element("th", {{"scope", "row"}}, fact.label);
    for (const Side& side : sides) {
      page.Begin("td");
      WriteSaid(page, side, fact.name);
      page.End();
    }
    page.End();
  }
  page.End();
  page.End();
}

}  // namespace

void WriteLink(CMarkup& page, const Side& side, const FoundField& found, std::string_view text) {
  side.rows->WriteLink(page, side.vif->PositionOf(found), text);
}

bool WriteFacts(CMarkup& page, const std::string& caption, const Sides& sides, std::span<const Fact> known) {
  std::vector<Fact> facts;
  std::copy_if(known.begin(), known.end(), std::back_inserter(facts),
               [&](const Fact& fact) { return HasFact(sides, fact); });
  if (facts.empty()) return false;
  if (sides.size() == 1) {
    WriteList(page, caption, sides.front(), facts);
  } else {
    WriteTable(page, caption, sides, facts);
  }
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

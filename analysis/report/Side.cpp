#include "report/Side.h"

#include <analysis/Differences.h>
#include <analysis/Text.h>

#include <algorithm>
#include <iterator>

namespace vifanalysis {

namespace {

const FoundField* FindIn(const Side& side, std::string_view name) {
  return side.group == nullptr ? nullptr : side.group->Find(name);
}

/// What the side says, with a link to the field.
/// \param withValue whether to write the value, too
void WriteSaid(CMarkup& page, const Side& side, std::string_view name, bool withValue = false) {
  const FoundField* found = FindIn(side, name);
  if (found == nullptr) {
    page.Element("span", {{"class", "none"}}, "\u2013");
    return;
  }
  const std::string text = side.vif->Says(*found, *side.group);
  WriteLink(page, side, *found, withValue ? side.vif->Declared(*found).Value() + (" \u00b7 " + text) : text);
}

bool HasFact(const Sides& sides, const Fact& fact) {
  return std::any_of(sides.begin(), sides.end(), [&](const Side& side) { return FindIn(side, fact.name) != nullptr; });
}

bool Differs(const Sides& sides, const Fact& fact) {
  return std::any_of(sides.begin(), sides.end(), [&](const Side& side) {
    const FoundField* found = FindIn(side, fact.name);
    return found != nullptr && side.rows->IsDifferent(side.vif->PositionOf(*found));
  });
}

/// Whether the sides have the fact, and the same text for it.
bool HaveSameText(const Sides& sides, const Fact& fact) {
  const FoundField* first = FindIn(sides.front(), fact.name);
  const FoundField* second = FindIn(sides.back(), fact.name);
  return first != nullptr && second != nullptr &&
         sides.front().vif->Says(*first, *sides.front().group) == sides.back().vif->Says(*second, *sides.back().group);
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
    const bool differs = Differs(sides, fact);
    const bool withValue = differs && HaveSameText(sides, fact);
    page.Begin("tr", {{"class", differs ? "changed" : "same"}});
    page.Begin("th", {{"scope", "row"}});
    page.Text(fact.label);
    if (differs) WriteMark(page, KindText(DifferenceKind::Changed));
    page.End();
    for (const Side& side : sides) {
      page.Begin("td");
      WriteSaid(page, side, fact.name, withValue);
      page.End();
    }
    page.End();
  }
  page.End();
  page.End();
}

}  // namespace

void WriteMark(CMarkup& page, std::string_view text) {
  page.Text(" ");
  page.Element("span", {{"class", "mark"}}, text);
}

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
  for (const std::string_view prefix :
       {"USB4_PCIe_Endpoint_", "USB4_Num_", "USB4_", "SVID_Mode_", "SVID_Num_", "SVID_"}) {
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
  page.Text(Amount(count - kMostShown, "more " + noun) + (count == kMostShown + 1 ? " is" : " are") +
            " in the list of ");
  page.Element("a", {{"href", "#fields"}}, "all fields");
  page.Text(".");
  page.End();
}

}  // namespace vifanalysis

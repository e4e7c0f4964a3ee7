#include "report/FieldRows.h"
#include "report/Sections.h"

#include <analysis/Text.h>

#include <algorithm>
#include <cstddef>
#include <map>
#include <optional>

namespace vifanalysis {

namespace {

std::string_view Verb(GroupChangeKind kind) {
  switch (kind) {
    case GroupChangeKind::Added: return "added";
    case GroupChangeKind::Removed: return "removed";
    case GroupChangeKind::Moved: return "moved";
    case GroupChangeKind::Renumbered: break;
  }
  return "renumbered";
}

/// Such as "Source PDO 5: added, Fixed, 9 V, 3 A, 27 W" or "Source PDO 4: renumbered, Source PDO 3 in the first file".
std::string GroupText(const GroupChange& change) {
  const bool isRemoved = change.kind == GroupChangeKind::Removed;
  std::string text = PlaceInWords(isRemoved ? change.before : change.after) + ": " + std::string(Verb(change.kind));
  if (change.kind == GroupChangeKind::Moved || change.kind == GroupChangeKind::Renumbered) {
    text += ", " + PlaceInWords(change.before) + " in the first file";
  }
  return change.summary.empty() ? text : text + " (" + change.summary + ")";
}

std::string_view ClassOf(GroupChangeKind kind) {
  if (kind == GroupChangeKind::Added) return "added";
  return kind == GroupChangeKind::Removed ? "removed" : "changed";
}

void WriteGroupChanges(CMarkup& page, const Differences& differences) {
  if (differences.groups.empty()) return;
  page.Begin("ul", {{"class", "groups"}});
  for (const GroupChange& change : differences.groups) {
    page.Element("li", {{"class", std::string(ClassOf(change.kind))}}, GroupText(change));
  }
  page.End();
}

std::string_view ClassOf(DifferenceKind kind) {
  if (kind == DifferenceKind::Added) return "added";
  return kind == DifferenceKind::Removed ? "removed" : "changed";
}

ShownValue ShownIn(const DeclaredField& declared) {
  ShownValue shown{declared.value, declared.description, declared.meaning, declared.isUncertain};
  if (shown.value.empty()) shown.value = declared.text;
  if (shown.description == shown.value) shown.description.clear();
  if (EqualInAnyCase(shown.meaning, shown.value) || EqualInAnyCase(shown.meaning, shown.description)) {
    shown.meaning.clear();
  }
  return shown;
}

void WriteDeclared(CMarkup& page, const std::optional<DeclaredField>& declared) {
  page.Begin("td");
  if (declared) {
    WriteValue(page, ShownIn(*declared));
  } else {
    page.Element("span", {{"class", "none"}}, "\u2013");
  }
  page.End();
}

/// A field that differs, in the table of differences.
void WriteDifference(CMarkup& page, const Difference& difference) {
  page.Begin("tr", {{"class", std::string(ClassOf(difference.kind))}});
  page.Begin("th", {{"scope", "row"}});
  const std::string place = PlaceInWords(difference.place);
  if (!place.empty()) page.Element("span", {{"class", "place"}}, place + " ");
  const std::string id =
      difference.after ? FieldId(difference.after->position) : RemovedFieldId(difference.before->position);
  page.Element("a", {{"href", '#' + id}}, difference.name);
  page.End();
  WriteDeclared(page, difference.before);
  WriteDeclared(page, difference.after);
  page.End();
}

std::vector<std::string_view> Headings(const ReportedVifs& vifs) {
  return {"Field", vifs.front()->File().name, vifs.back()->File().name};
}

void WriteFieldChanges(CMarkup& page, const ReportedVifs& vifs, const Differences& differences) {
  const auto isSingle = [](const Difference& difference) { return difference.group == Difference::kNoGroup; };
  if (std::none_of(differences.fields.begin(), differences.fields.end(), isSingle)) return;
  BeginTable(page, "Fields that differ", Headings(vifs));
  for (const Difference& difference : differences.fields) {
    if (isSingle(difference)) WriteDifference(page, difference);
  }
  EndTable(page);
}

using DifferencesByPlace = std::map<GroupPlace, std::vector<const Difference*>>;

/// All fields of the later file by group, with what the earlier file has in their stead.
class CSideBySide {
 public:
  CSideBySide(CMarkup& page, const ReportedVifs& vifs, const Differences& differences)
      : m_page(page), m_vif(*vifs.back()), m_headings(Headings(vifs)) {
    for (const Difference& difference : differences.fields) {
      if (difference.after) {
        m_changed.emplace(difference.after->position, &difference);
      } else {
        (difference.group == Difference::kNoGroup ? m_removed : m_removedGroups)[difference.place].push_back(
            &difference);
      }
    }
  }

  void Write() {
    WriteGroup(m_vif.View().Root());
    for (const DifferencesByPlace* places : {&m_removed, &m_removedGroups}) {
      for (const auto& [place, removed] : *places) WriteRemovedGroup(place, removed);
    }
  }

 private:
  void WriteGroup(const CGroupView& group) {
    const auto removed = m_removed.find(group.Place());
    if (!group.Fields().empty() || removed != m_removed.end()) {
      BeginTable(m_page, GroupTitle(group.Place()), m_headings);
      for (const FoundField* found : m_vif.FieldsOf(group)) WriteField(*found, group);
      if (removed != m_removed.end()) {
        for (const Difference* difference : removed->second) WriteRemoved(*difference);
        m_removed.erase(removed);
      }
      EndTable(m_page);
    }
    for (const CGroupView& inner : group.Groups()) WriteGroup(inner);
  }

  void WriteField(const FoundField& found, const CGroupView& group) {
    const std::size_t position = m_vif.PositionOf(found);
    const auto change = m_changed.find(position);
    const bool differs = change != m_changed.end();
    const std::string kind(differs ? ClassOf(change->second->kind) : "same");
    m_page.Begin("tr", {{"class", "field " + kind}, {"id", FieldId(position)}});
    m_names.Write(m_page, m_vif.Declared(found).Name());
    if (differs) {
      WriteDeclared(m_page, change->second->before);
      WriteDeclared(m_page, change->second->after);
    } else {
      m_page.Begin("td", {{"colspan", "2"}});
      WriteValue(m_page, m_vif.Shown(found, group));
      m_page.End();
    }
    m_page.End();
  }

  void WriteRemoved(const Difference& difference) {
    m_page.Begin("tr", {{"class", "field removed"}, {"id", RemovedFieldId(difference.before->position)}});
    m_names.Write(m_page, difference.name);
    WriteDeclared(m_page, difference.before);
    WriteDeclared(m_page, difference.after);
    m_page.End();
  }

  void WriteRemovedGroup(const GroupPlace& place, const std::vector<const Difference*>& removed) {
    BeginTable(m_page, GroupTitle(place) + " of the first file", m_headings);
    for (const Difference* difference : removed) WriteRemoved(*difference);
    EndTable(m_page);
  }

  CMarkup& m_page;
  const CReportedVif& m_vif;
  std::vector<std::string_view> m_headings;
  std::map<std::size_t, const Difference*> m_changed;
  DifferencesByPlace m_removed;        // single fields, by the group that they would be in
  DifferencesByPlace m_removedGroups;  // those of whole groups, which may have the numbers of others now
  CFieldNames m_names;
};

}  // namespace

void WriteDifferences(CMarkup& page, const ReportedVifs& vifs, const Differences& differences) {
  page.Begin("section", {{"id", "differences"}});
  page.Element("h2", "Differences");
  if (differences.IsEmpty()) page.Element("p", "None: both files mean the same.");
  WriteGroupChanges(page, differences);
  WriteFieldChanges(page, vifs, differences);
  page.End();
}

void WriteFieldsSideBySide(CMarkup& page, const ReportedVifs& vifs, const Differences& differences) {
  page.Begin("section", {{"id", "fields"}});
  page.Element("h2", "All fields");
  WriteFilter(page);
  CSideBySide(page, vifs, differences).Write();
  page.End();
}

}  // namespace vifanalysis

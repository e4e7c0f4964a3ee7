// Differences as short texts.
#pragma once

#include <analysis/Differences.h>
#include <analysis/FieldText.h>

#include <string>
#include <vector>

namespace vifanalysis::difftest {

inline std::string Shown(const std::optional<DeclaredField>& field) { return field ? field->text : "-"; }

/// "Component 1, Source PDO 2: Src_PDO_Voltage 180 > 240", with "-" for the side that lacks the field; those of whole
/// groups left out.
inline std::vector<std::string> FieldReport(const Differences& differences) {
  std::vector<std::string> report;
  for (const Difference& difference : differences.fields) {
    if (difference.group != Difference::kNoGroup) continue;
    report.push_back(PlaceInWords(difference.place) + ": " + difference.name + " " + Shown(difference.before) + " > " +
                     Shown(difference.after));
  }
  return report;
}

inline std::string GroupReport(const GroupChange& change) {
  switch (change.kind) {
    case GroupChangeKind::Added: return "+ " + PlaceInWords(change.after);
    case GroupChangeKind::Removed: return "- " + PlaceInWords(change.before);
    case GroupChangeKind::Moved: return "moved " + PlaceInWords(change.before) + " > " + PlaceInWords(change.after);
    case GroupChangeKind::Renumbered: break;
  }
  return PlaceInWords(change.before) + " > " + PlaceInWords(change.after);
}

inline std::vector<std::string> GroupReport(const Differences& differences) {
  std::vector<std::string> report;
  for (const GroupChange& change : differences.groups) report.push_back(GroupReport(change));
  return report;
}

}  // namespace vifanalysis::difftest

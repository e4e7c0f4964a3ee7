#include "DifferenceLines.h"

#include "Style.h"

#include <analysis/FieldText.h>
#include <analysis/Text.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string_view>
#include <tuple>
#include <utility>

namespace cli {

using vifanalysis::Amount;
using vifanalysis::DeclaredField;
using vifanalysis::Difference;
using vifanalysis::Differences;
using vifanalysis::GroupChange;
using vifanalysis::GroupChangeKind;
using vifanalysis::GroupDepth;
using vifanalysis::GroupKind;
using vifanalysis::GroupPlace;
using vifanalysis::NumberText;
using vifanalysis::PlaceInWords;
using vifanalysis::PlaceWithin;
using vifanalysis::Printable;

namespace {

constexpr std::string_view kArrow = " \u2192 ";

/// "PDO" but "Voltage": names begin words with a capital letter, and abbreviations have several.
bool IsWord(std::string_view word) {
  return word.size() > 1 && std::none_of(word.begin() + 1, word.end(), [](char c) { return c >= 'A' && c <= 'Z'; });
}

bool IsPdo(const GroupPlace& place) {
  const EVifLocation kind = GroupKind(place);
  return kind == eVifLocSrcPdo || kind == eVifLocSnkPdo;
}

/// What a field is called beside its place: of a PDO "max current" for Src_PDO_Max_Current, elsewhere its name.
std::string Label(std::string_view name, const GroupPlace& place) {
  constexpr std::array<std::string_view, 3> prefixes = {"Src_PDO_", "Snk_PDO_", "Src_PD_"};
  const auto prefix = std::find_if(prefixes.begin(), prefixes.end(),
                                   [&](std::string_view beginning) { return name.starts_with(beginning); });
  if (!IsPdo(place) || prefix == prefixes.end() || prefix->size() == name.size()) return Printable(name);
  name.remove_prefix(prefix->size());
  std::string label;
  while (!name.empty()) {
    std::string word(name.substr(0, name.find('_')));
    name.remove_prefix(std::min(word.size() + 1, name.size()));
    if (IsWord(word) && word.front() >= 'A' && word.front() <= 'Z') word.front() += 'a' - 'A';
    label.append(label.empty() ? "" : " ").append(word);
  }
  return Printable(label);
}

bool IsNumber(const DeclaredField& field) {
  return field.number && std::all_of(field.text.begin(), field.text.end(), vifanalysis::IsDigit);
}

std::string RawText(const DeclaredField& field) {
  return IsNumber(field) ? field.text : '"' + Printable(field.text) + '"';
}

std::string ShownText(const DeclaredField& field) {
  return field.meaning.empty() ? RawText(field) : Printable(field.meaning);
}

/// Whether what is shown says all, so that the number need not follow.
bool IsPlain(const DeclaredField& field) {
  return field.meaning.empty() || field.meaning == "YES" || field.meaning == "NO" || field.meaning.starts_with("0x");
}

/// "(180 → 240, uncertain)", without what goes without saying.
std::string Remark(const std::string& numbers, bool isPlain, bool isUncertain) {
  std::string remark = isPlain ? "" : numbers;
  if (isUncertain) remark.append(remark.empty() ? "" : ", ").append("uncertain");
  return remark.empty() ? remark : " (" + remark + ")";
}

std::string ValueText(const DeclaredField& field) {
  return ShownText(field) + Remark(RawText(field), IsPlain(field), field.isUncertain);
}

std::string ChangeText(const DeclaredField& before, const DeclaredField& after) {
  return Removed(ShownText(before)).append(kArrow).append(Added(ShownText(after))) +
         Remark(RawText(before).append(kArrow).append(RawText(after)), IsPlain(before) && IsPlain(after),
                before.isUncertain || after.isUncertain);
}

std::string DescriptionsText(const DeclaredField& before, const DeclaredField& after) {
  const auto quoted = [](const DeclaredField& field) { return '"' + Printable(field.description) + '"'; };
  return "description " + Removed(quoted(before)).append(kArrow).append(Added(quoted(after)));
}

bool HasOtherValue(const DeclaredField& before, const DeclaredField& after) {
  return before.text != after.text || before.number.has_value() != after.number.has_value();
}

std::string ChangedField(const DeclaredField& before, const DeclaredField& after, bool withDescriptions) {
  if (!HasOtherValue(before, after)) return DescriptionsText(before, after);
  const bool hasOtherDescription = withDescriptions && before.description != after.description;
  return ChangeText(before, after) + (hasOtherDescription ? ", " + DescriptionsText(before, after) : "");
}

std::string FieldText(const Difference& difference, bool withDescriptions) {
  const std::string label = Label(difference.name, difference.place) + ' ';
  const std::optional<DeclaredField>& before = difference.before;
  const std::optional<DeclaredField>& after = difference.after;
  if (before && after) return label + ChangedField(*before, *after, withDescriptions);
  if (before) return Removed("removed: " + label + ValueText(*before));
  return after ? Added("added: " + label + ValueText(*after)) : std::string();
}

/// "Source PDO 2: ", without the component, which is in the heading.
std::string Prefix(const GroupPlace& place) {
  const std::string words = PlaceInWords(place, 1);
  return words.empty() ? words : words + ": ";
}

/// A line, and what it is sorted by: first the group as a whole, with removed ones before that which has their number
/// now, then its fields.
struct RankedLine {
  GroupPlace place;
  int rank;
  std::string text;
};

using RankedLines = std::vector<RankedLine>;

/// What a whole group is called under its heading.
std::string GroupPrefix(const GroupPlace& place) {
  const bool isTop = GroupDepth(place) == 1;
  return isTop ? std::string() : Prefix(place);
}

/// "added: Fixed, 9 V" of a PDO, whose summary says what it is, but of a component, whose label is only one of many
/// fields, "added, with 8 fields (Port_Label "C0")".
std::string Summarised(const char* what, const GroupChange& change, const GroupPlace& place) {
  std::string text = what;
  const bool isWholeComponent = GroupDepth(place) == 1;
  const std::string summary = Printable(change.summary);
  if (!summary.empty() && !isWholeComponent) return text.append(": ").append(summary);
  text.append(", with ").append(Amount(change.fieldCount, "field"));
  return summary.empty() ? text : text.append(" (").append(summary).append(")");
}

/// "Source PDO 3" of a PDO, "Component 3" of a component.
std::string FormerPlace(const GroupChange& change) {
  const std::size_t depth = GroupDepth(change.before);
  return PlaceInWords(change.before, depth - 1);
}

RankedLine GroupLine(const GroupChange& change) {
  switch (change.kind) {
    case GroupChangeKind::Added:
      return {change.after, 1, GroupPrefix(change.after) + Added(Summarised("added", change, change.after))};
    case GroupChangeKind::Removed: {
      const GroupPlace place = PlaceWithin(change.after, change.before);
      return {place, 0, GroupPrefix(place) + Removed(Summarised("removed", change, place))};
    }
    case GroupChangeKind::Moved: {
      const std::string summary = change.summary.empty() ? "" : " (" + Printable(change.summary) + ")";
      return {change.after, 1, GroupPrefix(change.after) + "moved, was " + FormerPlace(change) + summary};
    }
    case GroupChangeKind::Renumbered: break;
  }
  return {change.after, 1, GroupPrefix(change.after) + "was " + FormerPlace(change)};
}

/// Whether both were renumbered, and have consecutive numbers in both files. Components have headings of their own.
bool Continues(const GroupChange& previous, const GroupChange& next) {
  if (GroupDepth(next.after) == 1) return false;
  if (previous.kind != GroupChangeKind::Renumbered || next.kind != GroupChangeKind::Renumbered) return false;
  const auto following = [](GroupPlace place) {
    const std::size_t depth = GroupDepth(place);
    if (depth != 0) ++std::get<1>(place[depth - 1]);
    return place;
  };
  return following(previous.before) == next.before && following(previous.after) == next.after;
}

RankedLine RunLine(const GroupChange& first, const GroupChange& last) {
  if (&first == &last) return GroupLine(first);
  const std::size_t depth = GroupDepth(first.after) - 1;
  const auto to = [&](const GroupPlace& end) { return " to " + NumberText(end[depth]); };
  std::string text = PlaceInWords(first.after, 1) + to(last.after);
  text.append(": were ").append(NumberText(first.before[depth])).append(to(last.before));
  return {first.after, 1, std::move(text)};
}

void AddGroupLines(const std::vector<GroupChange>& groups, RankedLines& lines) {
  for (std::size_t first = 0; first < groups.size();) {
    std::size_t last = first;
    while (last + 1 < groups.size() && Continues(groups[last], groups[last + 1])) ++last;
    lines.push_back(RunLine(groups[first], groups[last]));
    first = last + 1;
  }
}

}  // namespace

std::vector<DifferenceLine> DifferenceLines(const Differences& differences, bool withDescriptions) {
  RankedLines ranked;
  AddGroupLines(differences.groups, ranked);
  for (const Difference& difference : differences.fields) {
    if (difference.group != Difference::kNoGroup) continue;
    ranked.push_back({difference.place, 2, Prefix(difference.place) + FieldText(difference, withDescriptions)});
  }
  std::stable_sort(ranked.begin(), ranked.end(), [](const RankedLine& a, const RankedLine& b) {
    return std::tie(a.place, a.rank) < std::tie(b.place, b.rank);
  });
  std::vector<DifferenceLine> lines;
  lines.reserve(ranked.size());
  for (RankedLine& line : ranked) lines.push_back({line.place, std::move(line.text)});
  return lines;
}

std::string DifferenceSummary(const Differences& differences) {
  if (differences.IsEmpty()) return "no differences";
  std::map<std::string_view, std::size_t> counts;  // by kind
  for (const Difference& difference : differences.fields) {
    if (difference.group == Difference::kNoGroup) ++counts[KindText(difference.kind)];
  }
  for (const GroupChange& change : differences.groups) ++counts[KindText(change.kind)];
  if (counts.size() > 1) counts.erase(KindText(GroupChangeKind::Renumbered));
  std::size_t total = 0;
  std::string parts;
  for (const std::string_view kind : {"changed", "added", "removed", "moved", "renumbered"}) {
    const auto found = counts.find(kind);
    if (found == counts.end()) continue;
    total += found->second;
    parts.append(parts.empty() ? " " : ", ").append(std::to_string(found->second)).append(" ").append(kind);
  }
  return Amount(total, "difference") + ':' + parts;
}

}  // namespace cli

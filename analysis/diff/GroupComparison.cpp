#include "diff/GroupComparison.h"

#include "diff/GroupAlignment.h"
#include "diff/Meaning.h"

#include <analysis/FieldText.h>

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <optional>
#include <span>
#include <utility>

namespace vifanalysis {

namespace {

using NamedSpan = std::span<const NamedField>;
using GroupSpan = std::span<const CGroupView>;

/// Takes the fields of one name from the beginning.
NamedSpan TakeNamed(std::string_view name, NamedSpan& fields) {
  const auto end =
      std::find_if(fields.begin(), fields.end(), [&](const NamedField& field) { return field.name != name; });
  const NamedSpan taken(fields.begin(), end);
  fields = fields.subspan(taken.size());
  return taken;
}

/// Takes the groups of one kind from the beginning, either those with a number or the one without.
GroupSpan TakeGroups(EVifLocation kind, bool isNumbered, GroupSpan& groups) {
  const auto end = std::find_if(groups.begin(), groups.end(), [&](const CGroupView& group) {
    return group.Kind() != kind || (group.Index() != CVIFField::INDEX_NOT_SPECIFIED) != isNumbered;
  });
  const GroupSpan taken(groups.begin(), end);
  groups = groups.subspan(taken.size());
  return taken;
}

std::size_t CountFields(const CGroupView& group) {
  std::size_t count = group.Fields().size();
  for (const CGroupView& inner : group.Groups()) count += CountFields(inner);
  return count;
}

/// Whether a file has one group of that kind at most.
bool IsOnlyOne(EVifLocation kind) { return kind == eVifLocVif || kind == eVifLocAppVersion || kind == eVifLocProduct; }

class CComparison {
 public:
  CComparison(const CNormalFile& before, const CNormalFile& after, const CompareOptions& options, IsLeftOut isLeftOut)
      : m_before(before), m_after(after), m_options(options), m_isLeftOut(isLeftOut) {}

  void Compare(const CGroupView& before, const CGroupView& after) {
    CompareFields(before, after);
    GroupSpan groupsBefore = before.Groups();
    GroupSpan groupsAfter = after.Groups();
    while (!groupsBefore.empty() || !groupsAfter.empty()) {
      const EVifLocation kind = groupsAfter.empty() ? groupsBefore.front().Kind()
                                : groupsBefore.empty()
                                    ? groupsAfter.front().Kind()
                                    : std::min(groupsBefore.front().Kind(), groupsAfter.front().Kind());
      for (const bool isNumbered : {true, false}) {
        const GroupSpan ofBefore = TakeGroups(kind, isNumbered, groupsBefore);
        const GroupSpan ofAfter = TakeGroups(kind, isNumbered, groupsAfter);
        for (const GroupPair& pair : AlignGroups(ofBefore, ofAfter)) ComparePair(pair, before.Place(), after.Place());
      }
    }
  }

  Differences Take() { return std::move(m_differences); }

 private:
  /// \param outerBefore the place of the group around the pair in the first file
  void ComparePair(const GroupPair& pair, const GroupPlace& outerBefore, const GroupPlace& outerAfter) {
    const CGroupView& present = pair.before != nullptr ? *pair.before : *pair.after;
    if (IsOnlyOne(present.Kind()) && (pair.before == nullptr || pair.after == nullptr)) {
      const CGroupView empty(PlaceWithin(pair.before != nullptr ? outerAfter : outerBefore, present.Place()), {}, {});
      Compare(pair.before != nullptr ? present : empty, pair.after != nullptr ? present : empty);
      return;
    }
    if (pair.before == nullptr) {
      const std::size_t group = AddChange(
          {GroupChangeKind::Added, outerBefore, pair.after->Place(), CountFields(*pair.after), SummaryOf(*pair.after)});
      AddWhole(*pair.after, pair.after->Place(), DifferenceKind::Added, group);
      return;
    }
    if (pair.after == nullptr) {
      const std::size_t group = AddChange({GroupChangeKind::Removed, pair.before->Place(), outerAfter,
                                           CountFields(*pair.before), SummaryOf(*pair.before)});
      AddWhole(*pair.before, PlaceWithin(outerAfter, pair.before->Place()), DifferenceKind::Removed, group);
      return;
    }
    if (pair.before->Index() != pair.after->Index()) {
      AddChange({pair.isMoved ? GroupChangeKind::Moved : GroupChangeKind::Renumbered, pair.before->Place(),
                 pair.after->Place(), CountFields(*pair.after), SummaryOf(*pair.after)});
    }
    Compare(*pair.before, *pair.after);
  }

  std::size_t AddChange(GroupChange change) {
    m_differences.groups.push_back(std::move(change));
    return m_differences.groups.size() - 1;
  }

  /// All fields of a group that the other file lacks.
  void AddWhole(const CGroupView& whole, const GroupPlace& place, DifferenceKind kind, std::size_t group) {
    const bool isAdded = kind == DifferenceKind::Added;
    for (const auto& [name, found, isSound] : whole.Fields()) {
      AddDifference(kind, name, place, group, isAdded ? nullptr : found, whole, isAdded ? found : nullptr, whole);
    }
    for (const CGroupView& inner : whole.Groups()) AddWhole(inner, PlaceWithin(place, inner.Place()), kind, group);
  }

  void CompareFields(const CGroupView& before, const CGroupView& after) {
    NamedSpan fieldsBefore = before.Fields();
    NamedSpan fieldsAfter = after.Fields();
    while (!fieldsBefore.empty() || !fieldsAfter.empty()) {
      const std::string_view name = fieldsAfter.empty() ? fieldsBefore.front().name
                                    : fieldsBefore.empty()
                                        ? fieldsAfter.front().name
                                        : std::min(fieldsBefore.front().name, fieldsAfter.front().name);
      const NamedSpan ofBefore = TakeNamed(name, fieldsBefore);
      const NamedSpan ofAfter = TakeNamed(name, fieldsAfter);
      if (m_isLeftOut == nullptr || !m_isLeftOut(name)) CompareNamed(name, ofBefore, before, ofAfter, after);
    }
  }

  /// Compares the fields of one name, usually one on each side, in their order. Those at the beginning and the end that
  /// are equal are set aside, so that one more is one difference.
  void CompareNamed(std::string_view name, NamedSpan before, const CGroupView& groupBefore, NamedSpan after,
                    const CGroupView& groupAfter) {
    while (!before.empty() && !after.empty() && AreEqual(*before.front().field, *after.front().field)) {
      before = before.subspan(1);
      after = after.subspan(1);
    }
    while (!before.empty() && !after.empty() && AreEqual(*before.back().field, *after.back().field)) {
      before = before.first(before.size() - 1);
      after = after.first(after.size() - 1);
    }
    for (std::size_t i = 0; i < std::max(before.size(), after.size()); ++i) {
      const FoundField* old = i < before.size() ? before[i].field : nullptr;
      const FoundField* now = i < after.size() ? after[i].field : nullptr;
      if (old != nullptr && now != nullptr && AreEqual(*old, *now)) continue;
      const DifferenceKind kind = old == nullptr   ? DifferenceKind::Added
                                  : now == nullptr ? DifferenceKind::Removed
                                                   : DifferenceKind::Changed;
      AddDifference(kind, name, groupAfter.Place(), Difference::kNoGroup, old, groupBefore, now, groupAfter);
    }
  }

  bool AreEqual(const FoundField& before, const FoundField& after) const {
    const CVIFField& old = before.field;
    const CVIFField& now = after.field;
    if (IsProducerOfOtherForms(before, after)) return true;
    return old.IsNumeric() == now.IsNumeric() && std::string_view(old.Value()) == now.Value() &&
           (!m_options.descriptions || std::string_view(old.Description()) == now.Description());
  }

  /// The text form names the program that wrote the file in one text, the XML form in three that loading joins.
  bool IsProducerOfOtherForms(const FoundField& before, const FoundField& after) const {
    if (std::string_view(before.field.Name()) != "VIF_Producer") return false;
    const auto isText = [](const CVIFField& field) { return *field.Name() == '$'; };
    return isText(m_before.Declared(before)) != isText(m_after.Declared(after));
  }

  void AddDifference(DifferenceKind kind, std::string_view name, const GroupPlace& place, std::size_t group,
                     const FoundField* before, const CGroupView& groupBefore, const FoundField* after,
                     const CGroupView& groupAfter) {
    Difference& difference = m_differences.fields.emplace_back();
    difference.kind = kind;
    difference.name = name;
    difference.place = place;
    difference.group = group;
    if (before != nullptr) difference.before = Describe(m_before, *before, groupBefore);
    if (after != nullptr) difference.after = Describe(m_after, *after, groupAfter);
  }

  static DeclaredField Describe(const CNormalFile& file, const FoundField& found, const CGroupView& group) {
    const CVIFField& declared = file.Declared(found);
    DeclaredField field;
    field.name = declared.Name();
    field.indexes = declared.Indexes();
    field.value = declared.Value();
    field.description = declared.Description();
    if (HasNumber(declared)) field.number = declared.GetULongNumericValue();
    field.text = found.field.Value();
    FieldMeaning meaning = MeaningOf(found, group, file.GetEdition());
    field.meaning = std::move(meaning.text);
    field.isUncertain = meaning.isUncertain;
    field.place = group.Place();
    field.position = file.PositionOf(found);
    return field;
  }

  const CNormalFile& m_before;
  const CNormalFile& m_after;
  const CompareOptions& m_options;
  IsLeftOut m_isLeftOut;
  Differences m_differences;
};

}  // namespace

Differences CompareGroups(const Side& before, const Side& after, const CompareOptions& options, IsLeftOut isLeftOut) {
  CComparison comparison(before.file, after.file, options, isLeftOut);
  comparison.Compare(before.group, after.group);
  return comparison.Take();
}

}  // namespace vifanalysis

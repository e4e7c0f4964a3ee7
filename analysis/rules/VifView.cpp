#include "rules/VifView.h"
#include "files/GroupTree.h"

#include <analysis/FieldText.h>

#include <map>

namespace vifanalysis {

namespace {

using FieldsByPlace = std::map<GroupPlace, CGroupView::NamedFields>;

std::string_view NameOf(const CVIFField& field) {
  const std::string_view name = field.Name();
  return name.starts_with('$') ? name.substr(1) : name;
}

FieldsByPlace SortByPlace(const FoundFields& fields, const UnsoundFields& unsound) {
  FieldsByPlace sorted;
  auto last = sorted.end();  // fields of one group usually stand together
  for (const FoundField& found : fields) {
    const GroupPlace place = GroupPlaceOf(found.field);
    if (last == sorted.end() || last->first != place) last = sorted.try_emplace(place).first;
    last->second.push_back({NameOf(found.field), &found, !unsound.contains(&found)});
  }
  return sorted;
}

/// Builds the group at a place from all fields in it and in its inner groups. An unused slot sorts before any other, so
/// that the group's own fields come first and those of each group in it stand together.
/// \param next the first of the group's places; on return, the first after them
CGroupView MakeGroup(const GroupPlace& place, std::size_t depth, FieldsByPlace::iterator& next,
                     const FieldsByPlace::iterator& end) {
  const auto isInside = [&](const GroupPlace& other) {
    return std::equal(place.begin(), place.begin() + static_cast<std::ptrdiff_t>(depth), other.begin());
  };
  CGroupView::NamedFields fields;
  std::vector<CGroupView> groups;
  while (next != end && isInside(next->first)) {
    if (next->first == place) {
      fields = std::move(next->second);
      ++next;
    } else {
      GroupPlace inner = place;
      inner[depth] = next->first[depth];
      groups.push_back(MakeGroup(inner, depth + 1, next, end));
    }
  }
  return {place, std::move(fields), std::move(groups)};
}

CGroupView MakeRoot(const FoundFields& fields, const UnsoundFields& unsound) {
  FieldsByPlace sorted = SortByPlace(fields, unsound);
  GroupPlace nowhere;
  nowhere.fill(CVIFField::UNSPECIFIED_INDEX);
  auto next = sorted.begin();
  return MakeGroup(nowhere, 0, next, sorted.end());
}

std::vector<CPdoView> MakePdos(const CGroupView& component, EVifLocation kind, PdoSide side) {
  std::vector<CPdoView> pdos;
  for (const CGroupView& group : component.Groups(kind)) pdos.emplace_back(group, side);
  return pdos;
}

}  // namespace

CComponentView::CComponentView(CGroupView group, const CVifView& file)
    : CGroupView(std::move(group)),
      m_file(&file),
      m_sourcePdos(MakePdos(*this, eVifLocSrcPdo, PdoSide::Source)),
      m_sinkPdos(MakePdos(*this, eVifLocSnkPdo, PdoSide::Sink)) {}

CVifView::CVifView(const FoundFields& fields, const UnsoundFields& unsound)
    : m_fields(fields), m_root(MakeRoot(fields, unsound)), m_edition(EditionNamedBy(fields)) {
  for (const CGroupView& group : m_root.Groups(eVifLocComponent)) m_components.emplace_back(group, *this);
}

const FoundField* CVifView::FindHeader(std::string_view name) const {
  const CGroupView* header = First(eVifLocVif);
  const FoundField* found = header != nullptr ? header->Find(name) : nullptr;
  return found != nullptr ? found : m_root.Find(name);
}

std::optional<std::uint64_t> CVifView::HeaderNumber(std::string_view name) const {
  const CGroupView* header = First(eVifLocVif);
  return header != nullptr && header->Has(name) ? header->Number(name) : m_root.Number(name);
}

const CGroupView* CVifView::First(EVifLocation kind) const {
  const std::span<const CGroupView> groups = m_root.Groups(kind);
  return groups.empty() ? nullptr : &groups.front();
}

}  // namespace vifanalysis

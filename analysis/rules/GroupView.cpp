#include "rules/GroupView.h"

#include <analysis/FieldText.h>

#include <algorithm>

namespace vifanalysis {

namespace {

/// The group's own slot: the last that is in use.
const VifIndex* OwnSlot(const GroupPlace& place) {
  const VifIndex* own = nullptr;
  for (const VifIndex& slot : place) {
    if (IsUsed(slot)) own = &slot;
  }
  return own;
}

bool IsEarlier(const FoundField* a, const FoundField* b) {
  return b == nullptr || (a != nullptr && a < b);  // all fields of a file are in one list
}

}  // namespace

bool IsUnanswered(const FoundField& found) {
  constexpr std::string_view unanswered = "<select>";
  return found.field.Value() == unanswered || found.field.Description() == unanswered;
}

std::string_view TextOf(const FoundField& found) {
  const std::string_view value = found.field.Value();
  return value.empty() ? found.field.Description() : value;
}

CGroupView::CGroupView(const GroupPlace& place, NamedFields fields, std::vector<CGroupView> groups)
    : m_place(place), m_fields(std::move(fields)), m_groups(std::move(groups)) {
  for (const NamedField& named : m_fields) {
    if (IsEarlier(named.field, m_first)) m_first = named.field;
  }
  if (m_first == nullptr) {
    for (const CGroupView& group : m_groups) {
      if (IsEarlier(group.FirstField(), m_first)) m_first = group.FirstField();
    }
  }
  std::stable_sort(m_fields.begin(), m_fields.end(),
                   [](const NamedField& a, const NamedField& b) { return a.name < b.name; });
}

EVifLocation CGroupView::Kind() const {
  const VifIndex* own = OwnSlot(m_place);
  return own != nullptr ? std::get<0>(*own) : eVifLocUnset;
}

std::uint64_t CGroupView::Index() const {
  const VifIndex* own = OwnSlot(m_place);
  return own != nullptr ? std::get<1>(*own) : CVIFField::INDEX_NOT_SPECIFIED;
}

const NamedField* CGroupView::FindNamed(std::string_view name) const {
  const auto found =
      std::lower_bound(m_fields.begin(), m_fields.end(), name,
                       [](const NamedField& named, std::string_view wanted) { return named.name < wanted; });
  return found != m_fields.end() && found->name == name ? &*found : nullptr;
}

const FoundField* CGroupView::Find(std::string_view name) const {
  const NamedField* found = FindNamed(name);
  return found != nullptr ? found->field : nullptr;
}

std::optional<std::uint64_t> CGroupView::Number(std::string_view name) const {
  const NamedField* found = FindNamed(name);
  if (found == nullptr || !found->isSound || !HasNumber(found->field->field) || IsUnanswered(*found->field)) {
    return std::nullopt;
  }
  return found->field->field.GetULongNumericValue();
}

bool CGroupView::IsUnsound(std::string_view name) const {
  const NamedField* found = FindNamed(name);
  return found != nullptr && !found->isSound;
}

std::string_view CGroupView::Text(std::string_view name) const {
  const FoundField* found = Find(name);
  return found != nullptr ? TextOf(*found) : std::string_view();
}

std::span<const CGroupView> CGroupView::Groups(EVifLocation kind) const {
  const std::span<const CGroupView> all = AllGroups(kind);
  const auto last = std::partition_point(
      all.begin(), all.end(), [](const CGroupView& group) { return group.Index() != CVIFField::INDEX_NOT_SPECIFIED; });
  return all.first(static_cast<std::size_t>(last - all.begin()));
}

std::span<const CGroupView> CGroupView::AllGroups(EVifLocation kind) const {
  const auto first = std::partition_point(m_groups.begin(), m_groups.end(),
                                          [&](const CGroupView& group) { return group.Kind() < kind; });
  const auto last =
      std::partition_point(first, m_groups.end(), [&](const CGroupView& group) { return group.Kind() == kind; });
  return std::span(m_groups).subspan(static_cast<std::size_t>(first - m_groups.begin()),
                                     static_cast<std::size_t>(last - first));
}

}  // namespace vifanalysis

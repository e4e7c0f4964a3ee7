#include "report/FieldLinks.h"

#include <analysis/FieldText.h>

#include <algorithm>
#include <cstdint>
#include <deque>
#include <map>
#include <string_view>
#include <utility>

namespace vifanalysis {

namespace {

/// The groups that have other numbers in the later file, by their places in the earlier one.
using NewSlots = std::map<GroupPlace, VifIndex>;

NewSlots NewSlotsOf(const Differences& differences) {
  NewSlots slots;
  for (const GroupChange& change : differences.groups) {
    if (change.kind != GroupChangeKind::Moved && change.kind != GroupChangeKind::Renumbered) continue;
    const std::size_t depth = GroupDepth(change.after);
    if (depth != 0) slots.emplace(change.before, change.after[depth - 1]);
  }
  return slots;
}

/// Where the later file has a group of the earlier one.
GroupPlace NewPlace(const GroupPlace& place, const NewSlots& slots) {
  GroupPlace outer;
  outer.fill(CVIFField::UNSPECIFIED_INDEX);
  GroupPlace result = place;
  for (std::size_t depth = 0; depth < GroupDepth(place); ++depth) {
    outer[depth] = place[depth];
    if (const auto slot = slots.find(outer); slot != slots.end()) result[depth] = slot->second;
  }
  return result;
}

/// What distinguishes the fields of a file, but for those of one name in one group, which are compared in their order.
using FieldKey = std::pair<std::string_view, GroupPlace>;

}  // namespace

std::string FieldId(std::size_t position) { return "field-" + std::to_string(position); }

std::string RemovedFieldId(std::size_t position) { return "removed-" + std::to_string(position); }

CFieldRows::CFieldRows(const CReportedVif& vif)
    : m_ids(vif.View().Fields().size()), m_isDifferent(vif.View().Fields().size()) {
  for (std::size_t i = 0; i < m_ids.size(); ++i) m_ids[i] = FieldId(i);
}

CFieldRows CFieldRows::OfLater(const CReportedVif& after, const Differences& differences) {
  CFieldRows rows(after);
  for (const Difference& difference : differences.fields) {
    if (difference.after) rows.m_isDifferent[difference.after->position] = true;
  }
  return rows;
}

CFieldRows CFieldRows::OfEarlier(const CReportedVif& before, const CReportedVif& after,
                                 const Differences& differences) {
  CFieldRows rows(before);
  for (const Difference& difference : differences.fields) {
    if (!difference.before) continue;
    const std::size_t position = difference.before->position;
    rows.m_isDifferent[position] = true;
    rows.m_ids[position] = difference.after ? FieldId(difference.after->position) : RemovedFieldId(position);
  }
  const CFieldRows laterRows = OfLater(after, differences);
  const FoundFields& later = after.View().Fields();
  std::map<FieldKey, std::deque<std::size_t>> same;
  for (std::size_t i = 0; i < later.size(); ++i) {
    if (!laterRows.IsDifferent(i)) same[{later[i].field.Name(), later[i].field.Indexes()}].push_back(i);
  }
  const NewSlots slots = NewSlotsOf(differences);
  const FoundFields& earlier = before.View().Fields();
  for (std::size_t i = 0; i < earlier.size(); ++i) {
    if (rows.m_isDifferent[i]) continue;
    const auto row = same.find({earlier[i].field.Name(), NewPlace(earlier[i].field.Indexes(), slots)});
    rows.m_ids[i].clear();
    if (row == same.end() || row->second.empty()) continue;
    rows.m_ids[i] = FieldId(row->second.front());
    row->second.pop_front();
  }
  return rows;
}

bool CFieldRows::HasDifferent(const CReportedVif& vif, const CGroupView& group) const {
  return std::any_of(group.Fields().begin(), group.Fields().end(),
                     [&](const NamedField& named) { return IsDifferent(vif.PositionOf(*named.field)); });
}

void CFieldRows::WriteLink(CMarkup& page, std::size_t position, std::string_view text) const {
  if (position >= m_ids.size() || m_ids[position].empty()) {
    page.Text(text);
  } else {
    page.Element("a", {{"href", '#' + m_ids[position]}}, text);
  }
}

}  // namespace vifanalysis

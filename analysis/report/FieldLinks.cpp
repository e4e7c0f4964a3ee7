#include "report/FieldLinks.h"

#include <analysis/FieldText.h>

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

CFieldRows::CFieldRows(const CReportedVif& before, const CReportedVif& after, const Differences& differences)
    : m_ids(before.View().Fields().size()) {
  std::vector<bool> isDifferent(after.View().Fields().size());
  for (const Difference& difference : differences.fields) {
    if (difference.after) isDifferent[difference.after->position] = true;
    if (!difference.before) continue;
    m_ids[difference.before->position] =
        difference.after ? FieldId(difference.after->position) : RemovedFieldId(difference.before->position);
  }
  std::map<FieldKey, std::deque<std::size_t>> same;
  const FoundFields& later = after.View().Fields();
  for (std::size_t i = 0; i < later.size(); ++i) {
    if (!isDifferent[i]) same[{later[i].field.Name(), later[i].field.Indexes()}].push_back(i);
  }
  const NewSlots slots = NewSlotsOf(differences);
  const FoundFields& earlier = before.View().Fields();
  for (std::size_t i = 0; i < earlier.size(); ++i) {
    if (!m_ids[i].empty()) continue;
    const auto row = same.find({earlier[i].field.Name(), NewPlace(earlier[i].field.Indexes(), slots)});
    if (row == same.end() || row->second.empty()) continue;
    m_ids[i] = FieldId(row->second.front());
    row->second.pop_front();
  }
}

std::string CFieldRows::IdOf(std::size_t position) const { return m_ids.empty() ? FieldId(position) : m_ids[position]; }

void CFieldRows::WriteLink(CMarkup& page, std::size_t position, std::string_view text) const {
  const std::string id = IdOf(position);
  if (id.empty()) {
    page.Text(text);
  } else {
    page.Element("a", {{"href", '#' + id}}, text);
  }
}

}  // namespace vifanalysis

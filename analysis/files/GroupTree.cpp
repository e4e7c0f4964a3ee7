#include "GroupTree.h"

#include <analysis/FieldText.h>

namespace vifanalysis {

namespace {

/// The group that a field is in, created with the groups around it.
GroupContent& GroupOf(const FoundField& found, GroupTree& tree) {
  GroupPlace place;
  place.fill(CVIFField::UNSPECIFIED_INDEX);
  GroupContent* group = &tree[place];
  for (std::size_t depth = 0; depth < place.size(); ++depth) {
    const VifIndex& slot = found.field.Indexes()[depth];
    if (!IsUsed(slot)) break;
    group->groups[std::get<0>(slot)].try_emplace(std::get<1>(slot), &found);
    place[depth] = slot;
    group = &tree[place];
  }
  return *group;
}

}  // namespace

GroupPlace GroupPlaceOf(const CVIFField& field) {
  GroupPlace place;
  place.fill(CVIFField::UNSPECIFIED_INDEX);
  for (std::size_t depth = 0; depth < place.size() && IsUsed(field.Indexes()[depth]); ++depth) {
    place[depth] = field.Indexes()[depth];
  }
  return place;
}

GroupTree MakeGroupTree(const FoundFields& fields) {
  GroupTree tree;
  GroupContent* group = nullptr;
  const FoundField* last = nullptr;  // fields of one group usually stand together
  for (const FoundField& found : fields) {
    if (last == nullptr || last->field.Indexes() != found.field.Indexes()) group = &GroupOf(found, tree);
    group->fields.try_emplace(found.field.Name(), &found);
    last = &found;
  }
  return tree;
}

bool IsNumberedByNames(EVifLocation kind) {
  switch (kind) {
    case eVifLocRouter:
    case eVifLocRouterPcie:
    case eVifLocSrcPdo:
    case eVifLocSnkPdo:
    case eVifLocSopSvid:
    case eVifLocSopSvidMode:
    case eVifLocCableSvid:
    case eVifLocCableSvidMode: return true;
    case eVifLocUnset:
    case eVifLocVif:
    case eVifLocAppVersion:
    case eVifLocProduct:
    case eVifLocComponent: break;
  }
  return false;
}

}  // namespace vifanalysis

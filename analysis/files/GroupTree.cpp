#include "GroupTree.h"

#include <analysis/FieldText.h>

namespace vifanalysis {

std::map<GroupPlace, GroupContent> MakeGroupTree(const std::vector<FoundField>& fields) {
  std::map<GroupPlace, GroupContent> tree;
  for (const FoundField& found : fields) {
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
    group->fields.try_emplace(found.field.Name(), &found);
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

#include "DifferenceKinds.h"

namespace cli {

using vifanalysis::DifferenceKind;
using vifanalysis::GroupChangeKind;

const char* KindText(DifferenceKind kind) {
  if (kind == DifferenceKind::Changed) return "changed";
  return kind == DifferenceKind::Added ? "added" : "removed";
}

const char* KindText(GroupChangeKind kind) {
  switch (kind) {
    case GroupChangeKind::Added: return "added";
    case GroupChangeKind::Removed: return "removed";
    case GroupChangeKind::Moved: return "moved";
    case GroupChangeKind::Renumbered: break;
  }
  return "renumbered";
}

}  // namespace cli

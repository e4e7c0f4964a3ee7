#include "diff/GroupComparison.h"
#include "diff/NormalFile.h"

#include <analysis/Differences.h>

namespace vifanalysis {

Differences Compare(std::span<const CVIFField> before, std::span<const CVIFField> after,
                    const CompareOptions& options) {
  const CNormalFile normalBefore(before);
  const CNormalFile normalAfter(after);
  return CompareGroups({normalBefore, normalBefore.View().Root()}, {normalAfter, normalAfter.View().Root()}, options);
}

}  // namespace vifanalysis

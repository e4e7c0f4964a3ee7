#include "report/LabelPlacer.h"

#include <algorithm>

namespace vifanalysis {

bool CLabelPlacer::IsFree(const Box& box) const {
  return m_bounds.Contains(box) &&
         std::none_of(m_taken.begin(), m_taken.end(), [&](const Box& taken) { return taken.Overlaps(box); });
}

std::optional<Box> CLabelPlacer::Place(std::span<const Box> candidates, std::ptrdiff_t mostHidden) {
  std::optional<Box> best;
  std::ptrdiff_t least = mostHidden + 1;
  for (const Box& box : candidates) {
    if (!IsFree(box)) continue;
    const std::ptrdiff_t hidden =
        std::count_if(m_avoided.begin(), m_avoided.end(), [&](const Box& avoided) { return avoided.Overlaps(box); });
    if (hidden >= least) continue;
    least = hidden;
    best = box;
  }
  if (best) m_taken.push_back(*best);
  return best;
}

}  // namespace vifanalysis

// Fields and locations as text.
#pragma once

#include <VIFField.h>
#include <analysis/Export.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <string>
#include <tuple>

namespace vifanalysis {

/// The place of a group: its slots, outermost first, the rest `CVIFField::UNSPECIFIED_INDEX`.
using GroupPlace = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

/// The short name of a location, such as "SrcPdo".
VIF_ANALYSIS_API std::string LocationName(const VifIndex& slot);

/// Whether the slot is in use.
VIF_ANALYSIS_API bool IsUsed(const VifIndex& slot);

/// In how many groups a place is: 1 for a component, 2 for its PDOs, 0 for the file as a whole.
inline std::size_t GroupDepth(const GroupPlace& place) {
  return static_cast<std::size_t>(std::count_if(place.begin(), place.end(), IsUsed));
}

/// The kind of the innermost group of a place; `eVifLocUnset` for the file as a whole.
inline EVifLocation GroupKind(const GroupPlace& place) {
  const std::size_t depth = GroupDepth(place);
  return depth == 0 ? eVifLocUnset : std::get<0>(place[depth - 1]);
}

/// The place that a group would have in another outer group: with that group's slots, and its own kind and number.
inline GroupPlace PlaceWithin(GroupPlace outer, const GroupPlace& group) {
  const std::size_t depth = GroupDepth(group);
  if (depth != 0) outer[depth - 1] = group[depth - 1];
  return outer;
}

/// Whether the slot has a number.
VIF_ANALYSIS_API bool HasNumber(const VifIndex& slot);

/// Whether the field is numeric and its value is a valid number.
VIF_ANALYSIS_API bool HasNumber(const CVIFField& field);

/// The slot's number, or "?".
VIF_ANALYSIS_API std::string NumberText(const VifIndex& slot);

/// The field's place, outermost group first, such as "Component 1 · SrcPdo 2", with "?" for a number that the file does
/// not give. Empty for a field in no group.
VIF_ANALYSIS_API std::string LocationText(const CVIFField& field);

/// A place in words, outermost group first, such as "Component 1, Source PDO 2". The file, its application and the
/// product go without saying. May be called from any number of threads at once.
/// \param place the place
/// \param from how many of the outer slots to leave out; the result is empty when there are no more
/// \throws std::bad_alloc
VIF_ANALYSIS_API std::string PlaceInWords(const GroupPlace& place, std::size_t from = 0);

}  // namespace vifanalysis

// Places of groups.
#pragma once

#include "vif.h"

#include <VIFField.h>

#include <array>
#include <cstddef>

namespace vifc {

using Slots = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

/// Copies slots to a caller's array.
/// \return the number of those in use
std::uint32_t CopySlots(const Slots& slots, vif_index (&indexes)[VIF_INDEX_COUNT]) noexcept;

/// The slots of a query.
/// \param most how many there may be
/// \throws CFailure when there are more, or the array is missing
Slots SlotsOf(const vif_index* places, std::size_t count, std::size_t most);

}  // namespace vifc

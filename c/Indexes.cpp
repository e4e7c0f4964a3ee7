#include "Indexes.h"

#include "Guard.h"

#include <tuple>

namespace vifc {

static_assert(VIF_INDEX_COUNT == CVIFField::MAX_INDEX_DEPTH);
static_assert(VIF_ANY_NUMBER == CVIFField::INDEX_NOT_SPECIFIED);
static_assert(VIF_NO_NUMBER == CVIFField::VIF_VALUE_UNSET_64);
static_assert(int{VIF_LOCATION_UNSET} == int{eVifLocUnset});
static_assert(int{VIF_LOCATION_CABLE_SVID_MODE} == int{eVifLocCableSvidMode});

std::uint32_t CopySlots(const Slots& slots, vif_index (&indexes)[VIF_INDEX_COUNT]) noexcept {
  std::uint32_t used = 0;
  for (std::size_t i = 0; i < slots.size(); ++i) {
    const auto& [location, number] = slots[i];
    indexes[i] = {location, number};
    if (location != eVifLocUnset) ++used;
  }
  return used;
}

Slots SlotsOf(const vif_index* places, std::size_t count, std::size_t most) {
  Require(count <= most, "there are too many places");
  Require(places != nullptr || count == 0, "the places are NULL");
  Slots slots;
  slots.fill(CVIFField::UNSPECIFIED_INDEX);
  for (std::size_t i = 0; i < count; ++i) {
    slots[i] = {static_cast<EVifLocation>(places[i].location), places[i].number};
  }
  return slots;
}

}  // namespace vifc

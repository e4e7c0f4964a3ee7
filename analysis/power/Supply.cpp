#include "power/Supply.h"

namespace vifanalysis {

namespace {

/// Up to edition 3.12 programmable supplies were the only augmented ones, and no field said so. A rating is an
/// adjustable supply's.
Supply AugmentedSupply(const SupplyFields& fields) {
  if (!fields.hasApdoType) return fields.hasRating ? Supply::EprAdjustable : Supply::Programmable;
  if (fields.apdoType == 0U) return Supply::Programmable;
  if (fields.apdoType == 1U) return Supply::EprAdjustable;
  return fields.apdoType == 2U ? Supply::SprAdjustable : Supply::Unknown;
}

}  // namespace

PdoContext ContextOf(Supply supply) {
  constexpr std::uint64_t augmented = 3;
  PdoContext context;
  switch (supply) {
    case Supply::Fixed: context.supplyType = 0; break;
    case Supply::Battery: context.supplyType = 1; break;
    case Supply::Variable: context.supplyType = 2; break;
    case Supply::Programmable: context = {augmented, 0, {}, {}}; break;
    case Supply::EprAdjustable: context = {augmented, 1, {}, {}}; break;
    case Supply::SprAdjustable: context = {augmented, 2, {}, {}}; break;
    case Supply::Unknown: break;
  }
  return context;
}

Supply SupplyOf(const SupplyFields& fields) {
  if (fields.supplyType == 0U) return Supply::Fixed;
  if (fields.supplyType == 1U) return Supply::Battery;
  if (fields.supplyType == 2U) return Supply::Variable;
  return fields.supplyType == 3U ? AugmentedSupply(fields) : Supply::Unknown;
}

std::optional<Quantity> PdoQuantity(std::string_view name, std::uint64_t number, Supply supply) {
  constexpr std::uint64_t largest = 1'000'000;
  const FieldInfo* field = FindField(name).field;
  if (supply == Supply::Unknown || field == nullptr || number > largest) return std::nullopt;
  return QuantityOf(*field, number, ContextOf(supply));
}

}  // namespace vifanalysis

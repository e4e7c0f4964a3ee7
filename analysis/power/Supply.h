// Which kind of supply a PDO describes, and so which units its numbers are in.
#pragma once

#include <analysis/Vocabulary.h>

#include <cstdint>
#include <optional>
#include <string_view>

namespace vifanalysis {

/// What kind of supply a PDO describes.
enum class Supply : std::uint8_t {
  Unknown,        ///< Supply_Type or APDO_Type is missing or no known value
  Fixed,          ///< one voltage
  Battery,        ///< a range of voltages and a power
  Variable,       ///< a range of voltages and a current
  Programmable,   ///< PPS: a range of voltages and a current, chosen by the sink
  EprAdjustable,  ///< AVS of the extended power range: a range of voltages and a power rating
  SprAdjustable,  ///< AVS of the standard power range
};

/// The fields of a PDO that tell its supply.
struct SupplyFields {
  std::optional<std::uint64_t> supplyType;  ///< the number of Supply_Type, if it has one
  bool hasApdoType = false;                 ///< whether there is an APDO_Type
  std::optional<std::uint64_t> apdoType;    ///< its number, if it has one
  bool hasRating = false;                   ///< whether there is a PDP_Rating
};

/// The supply that these fields stand for.
Supply SupplyOf(const SupplyFields& fields);

/// What the units of a PDO with that supply depend on.
PdoContext ContextOf(Supply supply);

/// What a number of a PDO with that supply is worth: 180 as Src_PDO_Voltage of a fixed supply is 9000 mV.
/// \return nothing when such a supply has no such number, or more than a million of them, which no product means and
///   products of which might overflow
std::optional<Quantity> PdoQuantity(std::string_view name, std::uint64_t number, Supply supply);

}  // namespace vifanalysis

// What PDOs look like in a plane of voltage and current.
#pragma once

#include "rules/PdoView.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <tuple>
#include <vector>

namespace vifanalysis {

/// What one PDO offers or asks for: at any voltage of a range, up to a current and a power. Voltages are in mV,
/// currents in mA, powers in mW.
struct PowerShape {
  Supply supply = Supply::Unknown;
  std::uint64_t minVoltage = 0;
  std::uint64_t maxVoltage = 0;             ///< the same for a fixed supply
  std::uint64_t current = 0;                ///< the greatest that is drawn
  std::optional<std::uint64_t> powerLimit;  ///< what limits the current at high voltages
  std::optional<std::uint64_t> ownPower;    ///< what the PDO itself says of its power

  /// All of it, to compare shapes by.
  auto Key() const { return std::tie(supply, minVoltage, maxVoltage, current, powerLimit, ownPower); }

  friend bool operator==(const PowerShape& a, const PowerShape& b) { return a.Key() == b.Key(); }
  friend bool operator<(const PowerShape& a, const PowerShape& b) { return a.Key() < b.Key(); }

  bool IsRange() const { return supply != Supply::Fixed; }
};

/// A shape, and the first PDO that has it.
struct NumberedShape {
  PowerShape shape;
  std::uint64_t number = 0;
};

/// The shapes of a list of PDOs.
struct PowerShapes {
  std::vector<NumberedShape> shapes;  ///< each once, in the order of the PDOs
  std::size_t drawn = 0;              ///< PDOs with one of these shapes
  std::size_t unusable = 0;           ///< PDOs whose numbers are missing, contradictory or beyond the limits
  std::size_t surplus = 0;            ///< PDOs with further shapes
};

constexpr std::uint64_t kHighestVoltage = 100'000;  ///< mV; a picture up to more would show nothing of real PDOs
constexpr std::uint64_t kGreatestCurrent = 20'000;  ///< mA
constexpr std::size_t kMostShapes = 64;

/// The rating if it is one that can be drawn: more than nothing, and small enough to calculate with.
std::optional<std::uint64_t> UsableRating(std::optional<std::uint64_t> rating);

/// \param rating of the port in mW, which limits what it offers, but not what it asks for
PowerShapes ShapesOf(std::span<const CPdoView> pdos, std::optional<std::uint64_t> rating);

/// The voltage below which the current is the shape's greatest, and above which its power limit is felt; nothing when
/// there is no such limit.
std::optional<std::uint64_t> LimitVoltage(const PowerShape& shape);

/// The current in mA at a voltage in mV.
std::uint64_t CurrentAt(const PowerShape& shape, std::uint64_t voltage);

/// "9 V · 3 A", "PPS 3.3–11 V · 5 A", "Battery 6–8.4 V · 15 W".
std::string TextOf(const PowerShape& shape);

}  // namespace vifanalysis

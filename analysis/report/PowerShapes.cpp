#include "report/PowerShapes.h"

#include "power/Units.h"

#include <algorithm>
#include <set>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr std::uint64_t kLargestPower = 1'000'000'000;  // mW; products with 1000 fit into 64 bits by far
constexpr std::uint64_t kSprCurrent = 3000;             // mA; no field gives the current of an AVS
constexpr std::uint64_t kEprCurrent = 5000;

using Amount = std::optional<std::uint64_t>;

Amount Least(Amount a, Amount b) {
  if (!a || !b) return a ? a : b;
  return std::min(*a, *b);
}

/// What a field says or, for what no field says, what the format allows; nothing when a field should say it.
Amount CurrentOf(const CPdoView& pdo) {
  switch (pdo.GetSupply()) {
    case Supply::Battery: return pdo.Quantities().power ? Amount(kGreatestCurrent) : std::nullopt;
    case Supply::EprAdjustable: return kEprCurrent;
    case Supply::SprAdjustable: return kSprCurrent;
    default: return pdo.Quantities().current;
  }
}

Amount OwnPowerOf(const CPdoView& pdo) {
  if (pdo.GetSupply() == Supply::Battery) return pdo.Quantities().power;
  return pdo.GetSupply() == Supply::EprAdjustable ? pdo.Quantities().rating : std::nullopt;
}

Amount PowerLimitOf(const CPdoView& pdo, Amount rating) {
  const bool isLimitedByPort = pdo.IsAugmented() && pdo.Side() == PdoSide::Source;
  return Least(OwnPowerOf(pdo), isLimitedByPort ? rating : std::nullopt);
}

bool IsDrawable(const PowerShape& shape) {
  return shape.minVoltage <= shape.maxVoltage && shape.maxVoltage > 0 && shape.maxVoltage <= kHighestVoltage &&
         shape.current <= kGreatestCurrent;
}

std::optional<PowerShape> ShapeOf(const CPdoView& pdo, Amount rating) {
  if (pdo.GetSupply() == Supply::Unknown) return std::nullopt;
  const PdoQuantities& said = pdo.Quantities();
  const bool isFixed = pdo.GetSupply() == Supply::Fixed;
  const Amount lowest = isFixed ? said.voltage : said.minVoltage;
  const Amount highest = isFixed ? said.voltage : said.maxVoltage;
  const Amount current = CurrentOf(pdo);
  if (!lowest || !highest || !current) return std::nullopt;
  const PowerShape shape{pdo.GetSupply(), *lowest, *highest, *current, PowerLimitOf(pdo, rating), OwnPowerOf(pdo)};
  return IsDrawable(shape) ? std::optional(shape) : std::nullopt;
}

std::string_view RangeName(Supply supply) {
  switch (supply) {
    case Supply::Battery: return "Battery ";
    case Supply::Variable: return "Variable ";
    case Supply::Programmable: return "PPS ";
    case Supply::EprAdjustable: return "AVS ";
    case Supply::SprAdjustable: return "SPR AVS ";
    default: return "";
  }
}

/// "3.3–11 V"
std::string RangeText(const PowerShape& shape) {
  const std::string lowest = Volts(shape.minVoltage);
  return lowest.substr(0, lowest.find(' ')).append("–").append(Volts(shape.maxVoltage));
}

/// What the PDO says of its current or power; empty when it says nothing.
std::string AmountText(const PowerShape& shape) {
  if (shape.ownPower) return Watts(*shape.ownPower);
  const bool isAdjustable = shape.supply == Supply::EprAdjustable || shape.supply == Supply::SprAdjustable;
  return isAdjustable ? std::string() : Amperes(shape.current);
}

}  // namespace

std::optional<std::uint64_t> UsableRating(std::optional<std::uint64_t> rating) {
  return rating && *rating > 0 && *rating <= kLargestPower ? rating : std::nullopt;
}

PowerShapes ShapesOf(std::span<const CPdoView> pdos, std::optional<std::uint64_t> rating) {
  PowerShapes found;
  std::set<PowerShape> known;
  for (const CPdoView& pdo : pdos) {
    const std::optional<PowerShape> shape = ShapeOf(pdo, UsableRating(rating));
    if (!shape) {
      ++found.unusable;
    } else if (known.contains(*shape)) {
      ++found.drawn;
    } else if (known.size() == kMostShapes) {
      ++found.surplus;
    } else {
      known.insert(*shape);
      found.shapes.push_back({*shape, pdo.Index()});
      ++found.drawn;
    }
  }
  return found;
}

std::optional<std::uint64_t> LimitVoltage(const PowerShape& shape) {
  if (!shape.powerLimit || shape.current == 0) return std::nullopt;
  return *shape.powerLimit * 1000 / shape.current;
}

std::uint64_t CurrentAt(const PowerShape& shape, std::uint64_t voltage) {
  if (!shape.powerLimit || voltage == 0) return shape.current;
  return std::min(shape.current, *shape.powerLimit * 1000 / voltage);
}

std::string TextOf(const PowerShape& shape) {
  std::string text(RangeName(shape.supply));
  text += shape.IsRange() ? RangeText(shape) : Volts(shape.maxVoltage);
  const std::string amount = AmountText(shape);
  return amount.empty() ? text : text.append(" · ").append(amount);
}

}  // namespace vifanalysis

#include "rules/PdoView.h"

namespace vifanalysis {

namespace {

/// What one unit of a PDO's numbers is, in mV, mA and mW; 0 where the supply has no such number.
struct Units {
  std::uint64_t voltage;
  std::uint64_t current;
  std::uint64_t power;
  std::uint64_t rating;
};

constexpr Units UnitsOf(Supply supply) {
  switch (supply) {
    case Supply::Fixed:
    case Supply::Variable: return {50, 10, 0, 0};
    case Supply::Battery: return {50, 0, 250, 0};
    case Supply::Programmable: return {100, 50, 0, 0};
    case Supply::EprAdjustable: return {100, 0, 0, 1000};
    case Supply::SprAdjustable: return {100, 0, 0, 0};
    case Supply::Unknown: break;
  }
  return {0, 0, 0, 0};
}

/// Larger numbers are mistakes, and products of them might overflow.
constexpr std::uint64_t kLargest = 1'000'000;

}  // namespace

CPdoView::CPdoView(CGroupView group, PdoSide side)
    : CGroupView(std::move(group)), m_side(side), m_supply(FindSupply()) {
  const Units units = UnitsOf(m_supply);
  m_quantities.voltage = m_supply == Supply::Fixed ? InUnits("Voltage", units.voltage) : std::nullopt;
  m_quantities.minVoltage = m_supply != Supply::Fixed ? InUnits("Min_Voltage", units.voltage) : std::nullopt;
  m_quantities.maxVoltage = m_supply != Supply::Fixed ? InUnits("Max_Voltage", units.voltage) : std::nullopt;
  m_quantities.current = InUnits(CurrentEnding(), units.current);
  m_quantities.power = InUnits(PowerEnding(), units.power);
  m_quantities.rating = InUnits("PDP_Rating", units.rating);
}

std::string CPdoView::FullName(std::string_view ending) const {
  return std::string(m_side == PdoSide::Source ? "Src_PDO_" : "Snk_PDO_").append(ending);
}

/// Up to edition 3.12 programmable supplies were the only augmented ones, and no field said so. A rating is an
/// adjustable supply's.
Supply CPdoView::FindSupply() const {
  const std::optional<std::uint64_t> type = OwnNumber("Supply_Type");
  if (type == 0U) return Supply::Fixed;
  if (type == 1U) return Supply::Battery;
  if (type == 2U) return Supply::Variable;
  if (type != 3U) return Supply::Unknown;
  if (FindOwn("APDO_Type") == nullptr) {
    return FindOwn("PDP_Rating") == nullptr ? Supply::Programmable : Supply::EprAdjustable;
  }
  const std::optional<std::uint64_t> kind = OwnNumber("APDO_Type");
  if (kind == 0U) return Supply::Programmable;
  if (kind == 1U) return Supply::EprAdjustable;
  return kind == 2U ? Supply::SprAdjustable : Supply::Unknown;
}

std::optional<std::uint64_t> CPdoView::InUnits(std::string_view ending, std::uint64_t unit) const {
  if (unit == 0) return std::nullopt;
  const std::optional<std::uint64_t> number = OwnNumber(ending);
  if (!number || *number > kLargest) return std::nullopt;
  return *number * unit;
}

std::optional<std::uint64_t> CPdoView::HighestVoltage() const {
  return m_supply == Supply::Fixed ? m_quantities.voltage : m_quantities.maxVoltage;
}

std::optional<std::uint64_t> CPdoView::GreatestPower() const {
  if (m_supply == Supply::Battery) return m_quantities.power;
  if (m_supply == Supply::EprAdjustable) return m_quantities.rating;
  const std::optional<std::uint64_t> voltage = HighestVoltage();
  if (!voltage || !m_quantities.current) return std::nullopt;
  return *voltage * *m_quantities.current / 1000;
}

std::optional<std::uint64_t> CPdoView::PowerStep() const {
  const Units units = UnitsOf(m_supply);
  if (units.power != 0) return units.power;
  if (units.rating != 0) return units.rating;
  const std::optional<std::uint64_t> voltage = HighestVoltage();
  if (!voltage || units.current == 0) return std::nullopt;
  return *voltage * units.current / 1000;
}

const FoundField& CPdoView::PowerField() const {
  for (const std::string_view ending : {CurrentEnding(), PowerEnding(), std::string_view("PDP_Rating")}) {
    if (const FoundField* found = FindOwn(ending)) return *found;
  }
  return *FirstField();
}

}  // namespace vifanalysis

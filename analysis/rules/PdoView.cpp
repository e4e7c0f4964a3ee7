#include "rules/PdoView.h"

namespace vifanalysis {

CPdoView::CPdoView(CGroupView group, PdoSide side)
    : CGroupView(std::move(group)), m_side(side), m_supply(FindSupply()) {
  m_quantities.voltage = InUnits("Voltage");
  m_quantities.minVoltage = InUnits("Min_Voltage");
  m_quantities.maxVoltage = InUnits("Max_Voltage");
  m_quantities.current = InUnits(CurrentEnding());
  m_quantities.power = InUnits(PowerEnding());
  m_quantities.rating = InUnits("PDP_Rating");
}

std::string CPdoView::FullName(std::string_view ending) const {
  return std::string(m_side == PdoSide::Source ? "Src_PDO_" : "Snk_PDO_").append(ending);
}

Supply CPdoView::FindSupply() const {
  return SupplyOf({OwnNumber("Supply_Type"), FindOwn("APDO_Type") != nullptr, OwnNumber("APDO_Type"),
                   FindOwn("PDP_Rating") != nullptr});
}

std::optional<std::uint64_t> CPdoView::InUnits(std::string_view ending) const {
  const std::optional<std::uint64_t> number = OwnNumber(ending);
  return number ? Amount(ending, *number) : std::nullopt;
}

std::optional<std::uint64_t> CPdoView::Amount(std::string_view ending, std::uint64_t number) const {
  const std::optional<Quantity> quantity = PdoQuantity(FullName(ending), number, m_supply);
  return quantity ? std::optional(quantity->amount) : std::nullopt;
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
  if (m_supply == Supply::Battery) return Amount(PowerEnding(), 1);
  if (m_supply == Supply::EprAdjustable) return Amount("PDP_Rating", 1);
  const std::optional<std::uint64_t> voltage = HighestVoltage();
  const std::optional<std::uint64_t> step = Amount(CurrentEnding(), 1);
  if (!voltage || !step) return std::nullopt;
  return *voltage * *step / 1000;
}

const FoundField& CPdoView::PowerField() const {
  for (const std::string_view ending : {CurrentEnding(), PowerEnding(), std::string_view("PDP_Rating")}) {
    if (const FoundField* found = FindOwn(ending)) return *found;
  }
  return *FirstField();
}

}  // namespace vifanalysis

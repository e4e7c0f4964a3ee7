#include "report/PowerWords.h"

#include "power/Supply.h"
#include "power/Units.h"
#include "rules/PdoFacts.h"
#include "rules/PortRole.h"

#include <analysis/Vocabulary.h>

#include <algorithm>
#include <array>
#include <string_view>
#include <vector>

namespace vifanalysis {

namespace {

using Amount64 = std::optional<std::uint64_t>;

void Raise(Amount64& greatest, const Amount64& amount) {
  if (amount && (!greatest || *amount > *greatest)) greatest = amount;
}

void Lower(Amount64& least, const Amount64& amount) {
  if (amount && (!least || *amount < *least)) least = amount;
}

/// The ranges of a list of PDOs.
struct Ranges {
  Amount64 lowest;
  Amount64 highest;
  Amount64 current;
  Amount64 power;
  std::array<bool, 3> augmented{};  ///< whether there is a PPS, an EPR AVS, an SPR AVS
};

Ranges RangesOf(const std::vector<CPdoView>& pdos) {
  Ranges ranges;
  for (const CPdoView& pdo : pdos) {
    const PdoQuantities& quantities = pdo.Quantities();
    Lower(ranges.lowest, quantities.voltage ? quantities.voltage : quantities.minVoltage);
    Raise(ranges.highest, pdo.HighestVoltage());
    Raise(ranges.current, quantities.current);
    Raise(ranges.power, pdo.GreatestPower());
    ranges.augmented[0] |= pdo.GetSupply() == Supply::Programmable;
    ranges.augmented[1] |= pdo.GetSupply() == Supply::EprAdjustable;
    ranges.augmented[2] |= pdo.GetSupply() == Supply::SprAdjustable;
  }
  return ranges;
}

std::string VoltsText(const Ranges& ranges) {
  if (!ranges.highest) return {};
  if (!ranges.lowest || *ranges.lowest >= *ranges.highest) return Volts(*ranges.highest);
  std::string low = Volts(*ranges.lowest);
  if (low.ends_with(" V")) low.resize(low.size() - 2);
  return low + " to " + Volts(*ranges.highest);
}

std::string Join(const std::vector<std::string>& parts) {
  std::string text;
  for (const std::string& part : parts) {
    if (!part.empty()) text.append(text.empty() ? "" : ", ").append(part);
  }
  return text;
}

/// What the cable carries on VBUS.
std::string CableInWords(const CReportedVif& vif, const CComponentView& component) {
  const std::string text =
      Join({vif.Says(component, "Cable_VBUS_Current"), vif.Says(component, "Max_VBUS_Voltage_Vdm_V2"),
            component.IsYes("EPR_Mode_Capable") ? "EPR" : ""});
  return text.empty() ? text : "carries " + text;
}

}  // namespace

std::optional<std::uint64_t> RatingOf(const CComponentView& component, PdoSide side) {
  const std::string_view name = RatingName(side);
  const std::optional<std::uint64_t> number = component.Number(name);
  const FieldInfo* field = FindField(name).field;
  if (!number || field == nullptr) return std::nullopt;
  const std::optional<Quantity> quantity = QuantityOf(*field, *number);
  return quantity && quantity->unit == Unit::MilliWatt && quantity->amount != 0 ? std::optional(quantity->amount)
                                                                                : std::nullopt;
}

std::string PowerInWords(const CReportedVif& vif, const CComponentView& component, PdoSide side) {
  if (IsCable(component)) return side == PdoSide::Source ? CableInWords(vif, component) : std::string();
  const Ranges ranges = RangesOf(component.Pdos(side));
  Amount64 power = RatingOf(component, side);
  if (!power) power = ranges.power;
  std::string text = Join({power ? Watts(*power) : "", VoltsText(ranges),
                           ranges.current ? "up to " + Amperes(*ranges.current) : "", ranges.augmented[0] ? "PPS" : "",
                           ranges.augmented[1] ? "EPR AVS" : "", ranges.augmented[2] ? "SPR AVS" : ""});
  if (!text.empty() || side == PdoSide::Sink) return text;
  const std::string current = vif.Says(component, "RP_Value");
  const bool isSource = StateMachineOf(component) != StateMachine::Sink;
  return current.empty() || !isSource ? std::string() : "Type-C: " + current;
}

}  // namespace vifanalysis

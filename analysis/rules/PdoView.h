// PDOs with their numbers in units.
#pragma once

#include "power/Supply.h"
#include "rules/GroupView.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

enum class PdoSide : std::uint8_t { Source, Sink };

/// "source" or "sink".
constexpr std::string_view SideName(PdoSide side) { return side == PdoSide::Source ? "source" : "sink"; }

/// The numbers of a PDO, in mV, mA and mW. What the PDO does not say, or says in units that are not known, is empty; so
/// is a number of more than a million units, which no product means.
struct PdoQuantities {
  std::optional<std::uint64_t> voltage;     ///< of a fixed supply
  std::optional<std::uint64_t> minVoltage;  ///< of the others
  std::optional<std::uint64_t> maxVoltage;
  std::optional<std::uint64_t> current;  ///< the greatest of a source, the operating current of a sink
  std::optional<std::uint64_t> power;    ///< of a battery: the greatest of a source, the operating power of a sink
  std::optional<std::uint64_t> rating;   ///< of an adjustable supply
};

/// One PDO.
class CPdoView : public CGroupView {
 public:
  CPdoView(CGroupView group, PdoSide side);

  PdoSide Side() const { return m_side; }
  Supply GetSupply() const { return m_supply; }
  bool IsAugmented() const { return m_supply >= Supply::Programmable; }
  const PdoQuantities& Quantities() const { return m_quantities; }

  /// A name with the prefix of its side: "Voltage" gives "Src_PDO_Voltage" or "Snk_PDO_Voltage".
  std::string FullName(std::string_view ending) const;

  /// The field with that name and prefix, null when there is none.
  const FoundField* FindOwn(std::string_view ending) const { return Find(FullName(ending)); }

  /// That field's number; nothing when there is no field or no number.
  std::optional<std::uint64_t> OwnNumber(std::string_view ending) const { return Number(FullName(ending)); }

  /// "Max_Current" for a source, "Op_Current" for a sink.
  std::string_view CurrentEnding() const { return m_side == PdoSide::Source ? "Max_Current" : "Op_Current"; }

  /// "Max_Power" for a source, "Op_Power" for a sink.
  std::string_view PowerEnding() const { return m_side == PdoSide::Source ? "Max_Power" : "Op_Power"; }

  /// The highest voltage in mV: of a fixed supply its only one.
  std::optional<std::uint64_t> HighestVoltage() const;

  /// The greatest power in mW: declared, rated, or highest voltage times current. Nothing when it is not known.
  std::optional<std::uint64_t> GreatestPower() const;

  /// What one more unit of the current, the power or the rating adds to that power, in mW.
  std::optional<std::uint64_t> PowerStep() const;

  /// The field that is most to blame for its power: that of the current, the power or the rating, or else its first.
  const FoundField& PowerField() const;

 private:
  Supply FindSupply() const;
  std::optional<std::uint64_t> InUnits(std::string_view ending) const;
  std::optional<std::uint64_t> Amount(std::string_view ending, std::uint64_t number) const;

  PdoSide m_side;
  Supply m_supply;
  PdoQuantities m_quantities;
};

}  // namespace vifanalysis

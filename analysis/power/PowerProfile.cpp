#include "power/Supply.h"
#include "power/Units.h"

#include <analysis/FieldMeaning.h>
#include <analysis/FieldText.h>
#include <analysis/PowerProfile.h>

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr const char* kUnknown = "?";

/// The fields of one PDO by the ends of their names.
class CPdoFields {
 public:
  explicit CPdoFields(const std::vector<const CVIFField*>& fields) : m_fields(fields) {}

  /// The field whose name is "Src_PDO_" or "Snk_PDO_" and the ending, null when there is none.
  const CVIFField* Find(std::string_view ending) const {
    for (const CVIFField* field : m_fields) {
      const std::string_view name = field->Name();
      if (name.size() > kPrefixLength && name.substr(kPrefixLength) == ending && name.substr(3, 5) == "_PDO_") {
        return field;
      }
    }
    return nullptr;
  }

 private:
  static constexpr size_t kPrefixLength = 8;
  const std::vector<const CVIFField*>& m_fields;
};

std::optional<std::uint64_t> Number(const CVIFField* field) {
  if (field == nullptr || !HasNumber(*field)) return std::nullopt;
  return field->GetULongNumericValue();
}

Supply FindSupply(const CPdoFields& fields) {
  const CVIFField* kind = fields.Find("APDO_Type");
  return SupplyOf(
      {Number(fields.Find("Supply_Type")), kind != nullptr, Number(kind), fields.Find("PDP_Rating") != nullptr});
}

/// What the threshold for the voltage is given in.
std::optional<std::uint64_t> ThresholdType(const std::vector<const CVIFField*>& fields) {
  const auto found = std::find_if(fields.begin(), fields.end(), [](const CVIFField* field) {
    return field->Name() == std::string_view("Src_PD_OCP_UV_Threshold_Type");
  });
  return found != fields.end() ? Number(*found) : std::nullopt;
}

const char* SupplyText(Supply supply, std::optional<std::uint64_t> supplyType) {
  constexpr std::uint64_t augmented = 3;
  switch (supply) {
    case Supply::Fixed: return "Fixed";
    case Supply::Battery: return "Battery";
    case Supply::Variable: return "Variable";
    case Supply::Programmable: return "PPS";
    case Supply::EprAdjustable:
    case Supply::SprAdjustable: return "Augmented";
    case Supply::Unknown: break;
  }
  return supplyType == augmented ? "Augmented" : kUnknown;
}

/// Whether the text of the supply says what an APDO_Type would.
bool TellsApdoType(Supply supply) { return supply >= Supply::Fixed && supply <= Supply::Programmable; }

/// The amount that a field stands for, in thousandths of its unit.
std::optional<std::uint64_t> Amount(const CVIFField* field, Supply supply) {
  const std::optional<std::uint64_t> number = Number(field);
  if (!number) return std::nullopt;
  const std::optional<Quantity> quantity = PdoQuantity(field->Name(), *number, supply);
  return quantity ? std::optional(quantity->amount) : std::nullopt;
}

/// The field's amount in words, empty when there is no field.
std::string AmountText(const CVIFField* field, Supply supply, std::string (*inWords)(std::uint64_t)) {
  if (field == nullptr) return {};
  const std::optional<std::uint64_t> amount = Amount(field, supply);
  return amount ? inWords(*amount) : kUnknown;
}

/// "3.3 to 11 V" of "3.3 V" and "11 V"; either may be unknown or empty.
std::string RangeText(const std::string& lowest, const std::string& highest) {
  const auto withoutUnit = [](const std::string& text) {
    return text.empty() ? std::string(kUnknown) : text.substr(0, text.find(' '));
  };
  return withoutUnit(lowest).append(" to ").append(withoutUnit(highest)).append(" V");
}

}  // namespace

PowerProfile DescribePdo(const std::vector<const CVIFField*>& list, const Edition& edition) {
  const CPdoFields fields(list);
  const Supply supply = FindSupply(fields);
  const CVIFField* voltage = fields.Find("Voltage");
  const CVIFField* lowest = fields.Find("Min_Voltage");
  const CVIFField* highest = fields.Find("Max_Voltage");
  const CVIFField* maxCurrent = fields.Find("Max_Current");
  const CVIFField* opCurrent = fields.Find("Op_Current");
  const CVIFField* maxPower = fields.Find("Max_Power");
  const CVIFField* opPower = fields.Find("Op_Power");
  const CVIFField* current = maxCurrent != nullptr ? maxCurrent : opCurrent;
  const CVIFField* power = maxPower != nullptr ? maxPower : opPower;

  PowerProfile profile;
  profile.context = ContextOf(supply);
  profile.context.thresholdType = ThresholdType(list);
  profile.context.edition = edition;
  profile.supply = SupplyText(supply, Number(fields.Find("Supply_Type")));
  profile.voltage = lowest == nullptr && highest == nullptr
                        ? AmountText(voltage, supply, Volts)
                        : RangeText(AmountText(lowest, supply, Volts), AmountText(highest, supply, Volts));
  profile.current = AmountText(current, supply, Amperes);
  profile.power = AmountText(power, supply, Watts);
  const std::optional<std::uint64_t> milliVolt = Amount(voltage, supply);
  const std::optional<std::uint64_t> milliAmpere = Amount(current, supply);
  if (supply == Supply::Fixed && profile.power.empty() && milliVolt && milliAmpere) {
    profile.power = Watts(*milliVolt * *milliAmpere / 1000);
  }

  const auto shown = {fields.Find("Supply_Type"),
                      voltage,
                      lowest,
                      highest,
                      maxCurrent,
                      opCurrent,
                      maxPower,
                      opPower,
                      TellsApdoType(supply) ? fields.Find("APDO_Type") : nullptr};
  for (const CVIFField* field : list) {
    if (std::find(shown.begin(), shown.end(), field) == shown.end()) profile.others.push_back(field);
  }
  return profile;
}

}  // namespace vifanalysis

#include "power/Units.h"

#include <analysis/FieldText.h>
#include <analysis/PowerProfile.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr const char* kUnknown = "?";

/// A kind of supply and the units that its PDO counts in.
struct Supply {
  const char* name;
  std::uint64_t milliVolt;
  std::uint64_t milliAmpere;
  std::uint64_t milliWatt;
};

constexpr Supply kFixed = {"Fixed", 50, 10, 250};
constexpr Supply kBattery = {"Battery", 50, 10, 250};
constexpr Supply kVariable = {"Variable", 50, 10, 250};
constexpr Supply kProgrammable = {"PPS", 100, 50, 250};

/// Larger numbers are mistakes, and products of them might overflow.
constexpr std::uint64_t kLargest = 1'000'000;

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
  if (field == nullptr || !HasNumber(*field) || field->GetULongNumericValue() > kLargest) return std::nullopt;
  return field->GetULongNumericValue();
}

/// Whether an augmented supply is a programmable one; the units of the others are not settled here. Up to edition 3.12
/// there was no other, and no field to tell. A PDP rating is of an adjustable voltage supply.
bool IsProgrammable(const CPdoFields& fields) {
  const CVIFField* kind = fields.Find("APDO_Type");
  return kind != nullptr ? Number(kind) == 0U : fields.Find("PDP_Rating") == nullptr;
}

const Supply* FindSupply(const CPdoFields& fields) {
  const std::optional<std::uint64_t> type = Number(fields.Find("Supply_Type"));
  if (!type) return nullptr;
  switch (*type) {
    case 0: return &kFixed;
    case 1: return &kBattery;
    case 2: return &kVariable;
    case 3: return IsProgrammable(fields) ? &kProgrammable : nullptr;
    default: return nullptr;
  }
}

/// The first field that exists, converted with what one of its units is worth.
std::string Amount(std::initializer_list<const CVIFField*> candidates, std::uint64_t worth, bool unitIsKnown) {
  for (const CVIFField* field : candidates) {
    if (field == nullptr) continue;
    const std::optional<std::uint64_t> number = Number(field);
    return unitIsKnown && number ? Decimal(*number * worth) : kUnknown;
  }
  return {};
}

std::string WithUnit(const std::string& amount, const char* unit) {
  return amount.empty() || amount == kUnknown ? amount : amount + ' ' + unit;
}

std::string VoltageText(const std::string& fixed, const std::string& lowest, const std::string& highest) {
  if (lowest.empty() && highest.empty()) return WithUnit(fixed, "V");
  const auto orUnknown = [](const std::string& text) { return text.empty() ? kUnknown : text; };
  return orUnknown(lowest) + " to " + orUnknown(highest) + " V";
}

}  // namespace

PowerProfile DescribePdo(const std::vector<const CVIFField*>& list) {
  const CPdoFields fields(list);
  const Supply* supply = FindSupply(fields);
  const bool isKnown = supply != nullptr;
  const Supply units = isKnown ? *supply : Supply{kUnknown, 0, 0, 0};
  const CVIFField* voltage = fields.Find("Voltage");
  const CVIFField* lowest = fields.Find("Min_Voltage");
  const CVIFField* highest = fields.Find("Max_Voltage");
  const CVIFField* current = fields.Find("Max_Current");
  const CVIFField* operatingCurrent = fields.Find("Op_Current");
  const CVIFField* power = fields.Find("Max_Power");
  const CVIFField* operatingPower = fields.Find("Op_Power");

  PowerProfile profile;
  profile.supply = units.name;
  profile.voltage = VoltageText(Amount({voltage}, units.milliVolt, isKnown), Amount({lowest}, units.milliVolt, isKnown),
                                Amount({highest}, units.milliVolt, isKnown));
  profile.current = WithUnit(Amount({current, operatingCurrent}, units.milliAmpere, isKnown), "A");
  profile.power = WithUnit(Amount({power, operatingPower}, units.milliWatt, isKnown), "W");

  const std::optional<std::uint64_t> volts = Number(voltage);
  const std::optional<std::uint64_t> amperes = Number(current != nullptr ? current : operatingCurrent);
  if (supply == &kFixed && profile.power.empty() && volts && amperes) {
    profile.power = Decimal(*volts * units.milliVolt * *amperes * units.milliAmpere / 1000) + " W";
  }

  const auto shown = {fields.Find("Supply_Type"),
                      voltage,
                      lowest,
                      highest,
                      current,
                      operatingCurrent,
                      power,
                      operatingPower,
                      isKnown ? fields.Find("APDO_Type") : nullptr};
  for (const CVIFField* field : list) {
    if (std::find(shown.begin(), shown.end(), field) == shown.end()) profile.others.push_back(field);
  }
  return profile;
}

}  // namespace vifanalysis

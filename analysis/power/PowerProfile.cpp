#include "power/Units.h"

#include <analysis/FieldMeaning.h>
#include <analysis/FieldText.h>
#include <analysis/PowerProfile.h>

#include <algorithm>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

namespace {

constexpr const char* kUnknown = "?";

// Supply types.
constexpr std::uint64_t kFixed = 0;
constexpr std::uint64_t kAugmented = 3;

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

/// What decides on the units. An augmented supply without an APDO type is a programmable one, as there was no other up
/// to edition 3.12, but one with a PDP rating is of adjustable voltage.
PdoContext ContextOf(const CPdoFields& fields, const Edition& edition) {
  constexpr std::uint64_t programmable = 0;
  PdoContext context;
  context.supplyType = Number(fields.Find("Supply_Type"));
  context.apdoType = Number(fields.Find("APDO_Type"));
  const bool leavesTypeOpen = fields.Find("APDO_Type") == nullptr && fields.Find("PDP_Rating") == nullptr;
  if (context.supplyType == kAugmented && leavesTypeOpen) context.apdoType = programmable;
  context.edition = edition;
  return context;
}

bool IsProgrammable(const PdoContext& context) { return context.supplyType == kAugmented && context.apdoType == 0U; }

std::string SupplyText(const CPdoFields& fields, const PdoContext& context) {
  if (IsProgrammable(context)) return "PPS";
  const CVIFField* type = fields.Find("Supply_Type");
  if (type == nullptr) return kUnknown;
  const std::string text = MeaningOf(*type).text;
  return text.empty() ? kUnknown : text;
}

/// The number of a PDO's field in mV, mA or mW.
std::optional<std::uint64_t> Thousandths(const CVIFField& field, const PdoContext& context) {
  const FieldInfo* info = FindField(field.Name()).field;
  const std::optional<std::uint64_t> number = Number(&field);
  // Without a supply type, nothing is settled, even where all kinds of supply have the same unit.
  if (info == nullptr || !number || !context.supplyType) return std::nullopt;
  const std::optional<Quantity> quantity = QuantityOf(*info, *number, context);
  return quantity ? std::optional(quantity->amount) : std::nullopt;
}

/// The first field that exists, in thousandths of the amount's unit.
std::string Amount(std::initializer_list<const CVIFField*> candidates, const PdoContext& context) {
  for (const CVIFField* field : candidates) {
    if (field == nullptr) continue;
    const std::optional<std::uint64_t> thousandths = Thousandths(*field, context);
    return thousandths ? Decimal(*thousandths) : kUnknown;
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

PowerProfile DescribePdo(const std::vector<const CVIFField*>& list, const Edition& edition) {
  const CPdoFields fields(list);
  const PdoContext context = ContextOf(fields, edition);
  const CVIFField* voltage = fields.Find("Voltage");
  const CVIFField* lowest = fields.Find("Min_Voltage");
  const CVIFField* highest = fields.Find("Max_Voltage");
  const CVIFField* current = fields.Find("Max_Current");
  const CVIFField* operatingCurrent = fields.Find("Op_Current");
  const CVIFField* power = fields.Find("Max_Power");
  const CVIFField* operatingPower = fields.Find("Op_Power");

  PowerProfile profile;
  profile.context = context;
  profile.supply = SupplyText(fields, context);
  profile.voltage = VoltageText(Amount({voltage}, context), Amount({lowest}, context), Amount({highest}, context));
  profile.current = WithUnit(Amount({current, operatingCurrent}, context), "A");
  profile.power = WithUnit(Amount({power, operatingPower}, context), "W");

  const CVIFField* drawn = current != nullptr ? current : operatingCurrent;
  if (context.supplyType == kFixed && profile.power.empty() && voltage != nullptr && drawn != nullptr) {
    const std::optional<std::uint64_t> milliVolts = Thousandths(*voltage, context);
    const std::optional<std::uint64_t> milliAmperes = Thousandths(*drawn, context);
    if (milliVolts && milliAmperes) profile.power = Watts(*milliVolts * *milliAmperes / 1000);
  }

  const bool isSettled = profile.supply != kUnknown && (context.supplyType != kAugmented || IsProgrammable(context));
  const auto shown = {fields.Find("Supply_Type"),
                      voltage,
                      lowest,
                      highest,
                      current,
                      operatingCurrent,
                      power,
                      operatingPower,
                      isSettled ? fields.Find("APDO_Type") : nullptr};
  for (const CVIFField* field : list) {
    if (std::find(shown.begin(), shown.end(), field) == shown.end()) profile.others.push_back(field);
  }
  return profile;
}

}  // namespace vifanalysis

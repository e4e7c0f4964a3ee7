// Numbers and their units.
#include <analysis/Vocabulary.h>

#include <limits>

namespace vifanalysis {

namespace {

enum class Fit : std::uint8_t { No, Open, Yes };

/// The last edition without APDO types.
constexpr Edition kLastWithoutApdoTypes{3, 12};
constexpr std::uint64_t kAugmented = 3;
constexpr std::uint64_t kPps = 0;

Fit FitsMask(std::uint8_t mask, const std::optional<std::uint64_t>& type) noexcept {
  if (mask == 0) return Fit::Yes;
  if (!type) return Fit::Open;
  return *type < 8 && (unsigned{mask} >> *type & 1U) != 0 ? Fit::Yes : Fit::No;
}

PdoContext WithApdoType(PdoContext context) noexcept {
  const bool isPps =
      context.supplyType == kAugmented && IsKnown(context.edition) && context.edition <= kLastWithoutApdoTypes;
  if (isPps && !context.apdoType) context.apdoType = kPps;
  return context;
}

/// Whether the field's unit is the same under all conditions.
bool HasOneUnit(const FieldInfo& field) noexcept {
  const FieldUnit& first = field.units.front();
  for (const FieldUnit& row : field.units) {
    if (row.unit != first.unit || row.scale != first.scale || row.apdoTypes != 0) return false;
  }
  return true;
}

std::string Hexadecimal(std::uint64_t number, std::size_t width) {
  constexpr std::string_view kDigits = "0123456789ABCDEF";
  std::string text;
  for (; number != 0 || text.size() < width; number /= 16) text.insert(text.begin(), kDigits[number % 16]);
  return "0x" + text;
}

/// A thousandth of the amount, exact.
std::string Thousandth(std::uint64_t amount) {
  std::string text = std::to_string(amount / 1000);
  const std::uint64_t rest = amount % 1000;
  if (rest == 0) return text;
  std::string decimals = std::to_string(1000 + rest).substr(1);
  decimals.erase(decimals.find_last_not_of('0') + 1);
  return text + "." + decimals;
}

}  // namespace

const FieldUnit* FindUnit(const FieldInfo& field, const PdoContext& context) noexcept {
  const PdoContext pdo = WithApdoType(context);
  bool isOpen = false;
  for (const FieldUnit& row : field.units) {
    const Fit supply = FitsMask(row.supplyTypes, pdo.supplyType);
    const Fit apdo = FitsMask(row.apdoTypes, pdo.apdoType);
    const Fit threshold = FitsMask(row.thresholdTypes, pdo.thresholdType);
    if (supply == Fit::Yes && apdo == Fit::Yes && threshold == Fit::Yes) return &row;
    isOpen = isOpen || supply == Fit::Open || threshold == Fit::Open;
  }
  return isOpen && HasOneUnit(field) ? &field.units.front() : nullptr;
}

std::optional<Quantity> QuantityOf(const FieldInfo& field, std::uint64_t number, const PdoContext& context) noexcept {
  const FieldUnit* const row = FindUnit(field, context);
  if (row == nullptr || row->unit == Unit::Unknown) return std::nullopt;
  const std::uint64_t scale = row->unit == Unit::Watt ? std::uint64_t{row->scale} * 1000 : row->scale;
  if (number > std::numeric_limits<std::uint64_t>::max() / scale) return std::nullopt;
  return Quantity{number * scale, row->unit == Unit::Watt ? Unit::MilliWatt : row->unit};
}

std::string QuantityText(const Quantity& quantity) {
  std::string amount = std::to_string(quantity.amount);
  switch (quantity.unit) {
    case Unit::MilliVolt: return Thousandth(quantity.amount) + " V";
    case Unit::MilliAmpere: return Thousandth(quantity.amount) + " A";
    case Unit::MilliWatt: return Thousandth(quantity.amount) + " W";
    case Unit::Watt:
    case Unit::MilliSecond:
    case Unit::Percent:
    case Unit::MilliOhm:
    case Unit::DegreeCelsius: return amount + " " + std::string(UnitSymbol(quantity.unit));
    case Unit::Identifier: return Hexadecimal(quantity.amount, 4);
    case Unit::Bits: return Hexadecimal(quantity.amount, 8);
    case Unit::Unknown:
    case Unit::Count:
    case Unit::DecimalIdentifier: break;
  }
  return amount;
}

std::string_view UnitSymbol(Unit unit) noexcept {
  switch (unit) {
    case Unit::MilliVolt: return "mV";
    case Unit::MilliAmpere: return "mA";
    case Unit::MilliWatt: return "mW";
    case Unit::Watt: return "W";
    case Unit::MilliSecond: return "ms";
    case Unit::Percent: return "%";
    case Unit::MilliOhm: return "mOhm";
    case Unit::DegreeCelsius: return "°C";
    case Unit::Unknown:
    case Unit::Count:
    case Unit::Identifier:
    case Unit::DecimalIdentifier:
    case Unit::Bits: break;
  }
  return {};
}

}  // namespace vifanalysis

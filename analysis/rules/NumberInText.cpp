#include "rules/NumberInText.h"

#include <analysis/Text.h>

#include <algorithm>
#include <charconv>
#include <iterator>
#include <string>
#include <system_error>

namespace vifanalysis {

namespace {

struct UnitName {
  std::string_view name;
  Unit unit;
  std::uint64_t scale;
};

constexpr UnitName kUnitNames[] = {
    {"mV", Unit::MilliVolt, 1},     {"V", Unit::MilliVolt, 1000},   {"mA", Unit::MilliAmpere, 1},
    {"A", Unit::MilliAmpere, 1000}, {"mW", Unit::MilliWatt, 1},     {"W", Unit::MilliWatt, 1000},
    {"ms", Unit::MilliSecond, 1},   {"msec", Unit::MilliSecond, 1}, {"%", Unit::Percent, 1}};

void SkipBlanks(std::string_view& text) { text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size())); }

/// Takes the characters of a set off the beginning of a text.
std::string_view Take(std::string_view& text, std::string_view set) {
  const std::size_t length = std::min(text.find_first_not_of(set), text.size());
  const std::string_view taken = text.substr(0, length);
  text.remove_prefix(length);
  return taken;
}

std::string_view TakeDigits(std::string_view& text) { return Take(text, "0123456789"); }

/// Whether nothing is left, or a remark in parentheses.
bool IsEnd(std::string_view text) {
  SkipBlanks(text);
  return text.empty() || text.front() == '(';
}

std::optional<std::uint64_t> ToNumber(std::string_view digits, int base) {
  std::uint64_t number = 0;
  const std::from_chars_result result = std::from_chars(digits.data(), digits.data() + digits.size(), number, base);
  if (result.ec != std::errc() || result.ptr != digits.data() + digits.size()) return std::nullopt;
  return number;
}

/// Takes a number with up to three decimals off the beginning of a text, in thousandths.
std::optional<std::uint64_t> TakeThousandths(std::string_view& text) {
  constexpr std::size_t most = 12;  // digits, so that a product with two thousands has 64 bits
  const std::string_view whole = TakeDigits(text);
  if (whole.empty() || whole.size() > most) return std::nullopt;
  std::string digits(whole);
  std::string_view decimals;
  if (text.starts_with('.')) {
    text.remove_prefix(1);
    decimals = TakeDigits(text);
    if (decimals.empty() || decimals.size() > 3) return std::nullopt;
  }
  digits.append(decimals).append(3 - decimals.size(), '0');
  return ToNumber(digits, 10);
}

/// Whether the next word of a text is one of those between the underscores of a field's name, in any letter case.
bool BeginsWithWordOf(std::string_view text, std::string_view fieldName) {
  SkipBlanks(text);
  const std::string_view word = text.substr(0, text.find_first_of(" \t,.;:()"));
  while (!fieldName.empty()) {
    const std::string_view part = fieldName.substr(0, fieldName.find('_'));
    if (EqualInAnyCase(part, word)) return true;
    fieldName.remove_prefix(std::min(part.size() + 1, fieldName.size()));
  }
  return false;
}

const UnitName* FindUnitName(std::string_view name) {
  const UnitName* found =
      std::find_if(std::begin(kUnitNames), std::end(kUnitNames), [&](const UnitName& row) { return row.name == name; });
  return found != std::end(kUnitNames) ? found : nullptr;
}

}  // namespace

std::optional<Quantity> QuantityIn(std::string_view text) {
  SkipBlanks(text);
  const std::optional<std::uint64_t> thousandths = TakeThousandths(text);
  if (!thousandths) return std::nullopt;
  SkipBlanks(text);
  const UnitName* unit = FindUnitName(Take(text, "mVAWsec%"));
  if (unit == nullptr || !IsEnd(text)) return std::nullopt;
  const std::uint64_t amount = *thousandths * unit->scale;
  if (amount % 1000 != 0) return std::nullopt;
  return Quantity{amount / 1000, unit->unit};
}

std::optional<std::uint64_t> CountIn(std::string_view text, std::string_view fieldName) {
  SkipBlanks(text);
  const std::string_view digits = TakeDigits(text);
  if (!IsEnd(text) && !(text.starts_with(' ') && BeginsWithWordOf(text, fieldName))) return std::nullopt;
  return ToNumber(digits, 10);
}

std::optional<std::uint64_t> HexadecimalIn(std::string_view text) {
  SkipBlanks(text);
  constexpr std::size_t digitsOfAnId = 4;
  const bool isMarked = text.starts_with("0x") || text.starts_with("0X");
  if (isMarked) text.remove_prefix(2);
  const std::string_view digits = Take(text, "0123456789ABCDEFabcdef");
  if (!isMarked && digits.size() < digitsOfAnId) return std::nullopt;  // "ADD" is a word, and "2" may count something
  return IsEnd(text) ? ToNumber(digits, 16) : std::nullopt;
}

}  // namespace vifanalysis

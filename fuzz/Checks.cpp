#include "Checks.h"

#include "BaseUtilities/Exceptions.h"
#include "BaseUtilities/StringConvert.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>

namespace fuzz {

namespace {

/// The field's number; nothing if the field is not numeric.
std::optional<std::uint64_t> Number(const CVIFField& field) {
  try {
    return field.GetULongNumericValue();
  } catch (const CZoRunTimeException&) {
    return std::nullopt;
  }
}

void CheckSlots(const CVIFField& field) {
  const auto& slots = field.Indexes();
  for (auto slot = slots.begin(); slot != slots.end(); ++slot) {
    if (slot >= slots.begin() + field.IndexCount()) {
      Require(*slot == CVIFField::UNSPECIFIED_INDEX, "unused slots come last and hold nothing");
      continue;
    }
    const auto location = std::get<EVifLocation>(*slot);
    Require(location >= eVifLocVif && location <= eVifLocCableSvidMode, "a slot in use names a location");
    const auto first = std::find_if(slots.begin(), slots.end(),
                                    [&](const VifIndex& other) { return std::get<EVifLocation>(other) == location; });
    Require(field.Index(location) == std::get<std::uint64_t>(*first), "Index returns the first number of a location");
    Require(field.Match(nullptr, *first, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX),
            "a field matches a query for its own place");
  }
}

void CheckNumber(const CVIFField& field) {
  const std::optional<std::uint64_t> number = Number(field);
  Require(number.has_value() == field.IsNumeric(), "only a numeric field returns a number");
  const auto narrow = number ? static_cast<std::uint32_t>(*number) : CVIFField::VIF_VALUE_UNSET;
  Require(field.GetNumericValue() == narrow, "the narrow number is the low half of the number");
}

std::string Quoted(const char* text) { return '"' + std::string(text) + '"'; }

}  // namespace

void Require(bool isKept, std::string_view promise) {
  if (isKept) return;
  std::cerr << "Broken promise: " << promise << '\n';
  std::abort();
}

std::string Shown(std::string_view text) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string shown = "\"";
  for (const char c : text) {
    const auto byte = static_cast<unsigned char>(c);
    if (c >= ' ' && c <= '~') {
      shown += c;
    } else {
      shown.append("\\x") += digits[byte / 16U];
      shown += digits[byte % 16U];
    }
  }
  return shown += '"';
}

std::string Shown(std::uint64_t number) { return std::to_string(number); }

std::string Shown(const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& slots) {
  std::string shown;
  for (const auto& [location, number] : slots) {
    shown.append(GetVifLocInfo(location).name).append(" ").append(Shown(number)).append(", ");
  }
  return shown;
}

void CheckField(const CVIFField& field) {
  CheckSlots(field);
  CheckNumber(field);
  const std::string value = field.IsNumeric() ? field.Value() : Quoted(field.Value());
  Require(field.MakeOutputString().get() == std::string(field.Name()) + '=' + value, "the output string is name=value");
}

bool AreSame(const CVIFField& one, const CVIFField& other) {
  const auto texts = [](const CVIFField& field) {
    return std::array<std::string_view, 3>{field.Name(), field.Value(), field.Description()};
  };
  return texts(one) == texts(other) && one.IsNumeric() == other.IsNumeric() && one.Indexes() == other.Indexes() &&
         Number(one) == Number(other);
}

bool AreSame(const std::vector<CVIFField>& one, const std::vector<CVIFField>& other) {
  return std::equal(one.begin(), one.end(), other.begin(), other.end(),
                    [](const CVIFField& a, const CVIFField& b) { return AreSame(a, b); });
}

bool IsUtf8(std::string_view text) { return Utf16ToUtf8(Utf8ToUtf16(text)) == text; }

}  // namespace fuzz

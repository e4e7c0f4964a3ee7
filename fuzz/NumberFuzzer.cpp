// Reads arbitrary values as numbers, and compares the results with those of a second, simple function.
#include "BaseUtilities/Exceptions.h"
#include "Checks.h"
#include "VIFField.h"

#include <charconv>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <system_error>

namespace {

using fuzz::Require;

std::string LowerCase(std::string_view text) {
  std::string lower(text);
  for (char& c : lower) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c | 0x20);
  }
  return lower;
}

/// The number of a text according to the documentation of `CVIFField::GetULongNumericValue`.
std::uint64_t ExpectedNumber(std::string_view text) {
  const std::string lower = LowerCase(text);
  if (lower == "no" || lower == "false") return 0;
  if (lower == "yes" || lower == "true") return 1;
  const bool isHexadecimal = lower.starts_with("0x");
  const std::string fromDigits = isHexadecimal ? lower.substr(2) : lower;
  const std::string digits =
      fromDigits.substr(0, fromDigits.find_first_not_of(isHexadecimal ? "0123456789abcdef" : "0123456789"));
  std::uint64_t number = 0;
  const auto [end, error] =
      std::from_chars(digits.data(), digits.data() + digits.size(), number, isHexadecimal ? 16 : 10);
  return error == std::errc() ? number : CVIFField::VIF_VALUE_UNSET_64;
}

CVIFField MakeField(bool isNumeric, const std::string& value) {
  return {isNumeric,
          "Num_Src_PDOs",
          value,
          {CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX}};
}

void CheckTextField(const CVIFField& field) {
  fuzz::CheckField(field);
  Require(field.GetNumericValue() == CVIFField::VIF_VALUE_UNSET, "a field that is not numeric has the unset number");
  try {
    field.GetULongNumericValue();
  } catch (const CZoRunTimeException& error) {
    Require(std::string_view(error.what()) == "Field 'Num_Src_PDOs' is not Numeric.", "the message names the field");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string value(data, data + size);
  const CVIFField field = MakeField(true, value);
  fuzz::CheckField(field);
  const std::uint64_t expected = ExpectedNumber(value);
  fuzz::RequireSame(field.GetULongNumericValue(), expected, "a value is the number that its text stands for");
  Require(CVIFField(field).GetULongNumericValue() == expected, "a copy has the same number");
  CheckTextField(MakeField(false, value));
  return 0;
}

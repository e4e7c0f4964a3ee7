#include <analysis/FieldText.h>
#include <analysis/Text.h>
#include "FormRules.h"
#include "Sentence.h"

#include <algorithm>
#include <string_view>

namespace vifanalysis {

namespace {

bool IsHexadecimal(std::string_view value) { return value.starts_with("0x") || value.starts_with("0X"); }

/// The length of the number that a value begins with, its "0x" included.
std::size_t ReadLength(std::string_view value) {
  const std::string_view digits = IsHexadecimal(value) ? "0123456789abcdefABCDEF" : "0123456789";
  return std::min(value.find_first_not_of(digits, IsHexadecimal(value) ? 2 : 0), value.size());
}

/// Whether a number, all of it digits after the "0x", is the greatest of 64 bits.
bool IsGreatest(std::string_view number) {
  const std::string_view digits = number.substr(IsHexadecimal(number) ? 2 : 0);
  const std::string_view significant = digits.substr(std::min(digits.find_first_not_of('0'), digits.size()));
  if (!IsHexadecimal(number)) return significant == "18446744073709551615";
  return significant.size() == 16 && significant.find_first_not_of("fF") == std::string_view::npos;
}

std::string WhyNoNumber(std::string_view value) {
  if (value.empty()) return "is empty";
  if (value.front() == '-') return "is negative";
  if (value.front() == '+') return "begins with a sign";
  if (std::string_view(" \t\r\n\v\f").find(value.front()) != std::string_view::npos) return "begins with a blank";
  const std::size_t length = ReadLength(value);
  if (length <= (IsHexadecimal(value) ? 2U : 0U)) return "does not begin with a number";
  return IsGreatest(value.substr(0, length)) ? "is reserved to mean no number" : "has more than 64 bits";
}

bool IsTruthValue(const CVIFField& field) { return !IsDigit(*field.Value()); }

}  // namespace

void FindBadNumbers(const FoundFields& fields, Findings& findings) {
  for (const FoundField& found : fields) {
    const CVIFField& field = found.field;
    if (!field.IsNumeric()) continue;
    const std::string_view value = field.Value();
    if (!HasNumber(field)) {
      findings.push_back(
          About(found, code::kNoNumber,
                NameAndPlace(field) + " has no number: its value " + Quoted(value) + ' ' + WhyNoNumber(value)));
    } else if (const std::size_t length = ReadLength(value); length < value.size() && !IsTruthValue(field)) {
      findings.push_back(About(found, code::kNumberPartlyRead,
                               NameAndPlace(field) + ": only " + Quoted(value.substr(0, length)) + " of the value " +
                                   Quoted(value) + " is read"));
    }
  }
}

}  // namespace vifanalysis

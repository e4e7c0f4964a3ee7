#include "diff/NormalFile.h"

#include <analysis/FieldText.h>
#include <analysis/Text.h>
#include <analysis/Vocabulary.h>

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace vifanalysis {

namespace {

/// The field that is certain to be meant; null when none is. An older field that became two is neither of them, and a
/// field in another group than its name's may be another one.
const FieldInfo* FieldMeant(const NameMatch& match, const CVIFField& declared) {
  if (match.field == nullptr || match.otherField != nullptr) return nullptr;
  if (match.spelling != nullptr && match.spelling->confidence == Confidence::Low) return nullptr;
  const EVifLocation kind = GroupKind(declared.Indexes());
  return kind == eVifLocUnset || kind == match.field->Group() ? match.field : nullptr;
}

std::string_view WithoutDollarSign(std::string_view name) { return name.starts_with('$') ? name.substr(1) : name; }

std::uint64_t NumberIn(std::string_view digits) {
  std::uint64_t number = CVIFField::INDEX_NOT_SPECIFIED;
  std::from_chars(digits.data(), digits.data() + digits.size(), number);
  return number;
}

/// Where the XML form has a field that is in no group: a text, or a name that loading does not know. A text file is one
/// component.
GroupPlace PlaceOf(const FieldInfo& field, const NameMatch& match) {
  GroupPlace place;
  place.fill(CVIFField::UNSPECIFIED_INDEX);
  std::size_t numbered = 0;
  for (std::size_t depth = 0; depth < place.size() && field.locations[depth] != eVifLocUnset; ++depth) {
    const EVifLocation kind = field.locations[depth];
    const bool hasDigits = IsNumberedByNames(kind) && numbered < match.indexDigits.size();
    place[depth] = {kind, hasDigits ? NumberIn(match.indexDigits[numbered++]) : GetVifLocFirstIndex(kind)};
  }
  return place;
}

/// Whether the value is a number and nothing else: "12 V" is not.
bool IsNumberOnly(std::string_view value) {
  const bool isHexadecimal = value.starts_with("0x") || value.starts_with("0X");
  if (isHexadecimal) value.remove_prefix(2);
  constexpr std::string_view words[] = {"NO", "YES", "TRUE", "FALSE"};
  const auto isHexDigit = [](char c) { return IsDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F'); };
  const auto isValue = [&](std::string_view word) { return EqualInAnyCase(value, word); };
  if (!isHexadecimal && std::any_of(std::begin(words), std::end(words), isValue)) return true;
  return !value.empty() && (isHexadecimal ? std::all_of(value.begin(), value.end(), isHexDigit)
                                          : std::all_of(value.begin(), value.end(), IsDigit));
}

/// The number that the value is and nothing else, if it has up to 64 bits. `CVIFField` reserves the greatest one.
std::optional<std::uint64_t> NumberOf(const CVIFField& declared) {
  const std::string_view value = declared.Value();
  if (!IsNumberOnly(value)) return std::nullopt;
  if (HasNumber(declared)) return declared.GetULongNumericValue();
  const bool isHexadecimal = value.size() > 1 && (value[1] == 'x' || value[1] == 'X');
  std::uint64_t number = 0;
  const char* const digits = value.data() + (isHexadecimal ? 2 : 0);
  const auto result = std::from_chars(digits, value.data() + value.size(), number, isHexadecimal ? 16 : 10);
  return result.ec == std::errc() ? std::optional(number) : std::nullopt;
}

std::string TextOfField(const CVIFField& declared, std::string_view name) {
  std::string_view text = declared.Value();
  if (text.empty()) text = declared.Description();
  // Loading an XML file puts this before the edition.
  constexpr std::string_view prefix = "Version ";
  if (name == "VIF_Specification" && text.starts_with(prefix)) text.remove_prefix(prefix.size());
  return std::string(text);
}

std::string DescriptionOf(const CVIFField& declared, bool isText) {
  const std::string_view description = declared.Description();
  const std::string_view value = declared.Value();
  const bool isValue = description == value || (isText && value.empty());
  return isValue ? std::string() : std::string(description);
}

CVIFField Normal(const CVIFField& declared) {
  const NameMatch match = FindField(declared.Name());
  const FieldInfo* field = FieldMeant(match, declared);
  std::string name(field != nullptr ? field->name : WithoutDollarSign(declared.Name()));
  const bool isText = !declared.IsNumeric() || (field != nullptr && field->type == FieldType::Text);
  std::string value = isText ? TextOfField(declared, name) : declared.Value();
  if (const auto number = isText ? std::nullopt : NumberOf(declared)) value = std::to_string(*number);
  const bool isPlaced = field == nullptr || declared.IndexCount() != 0;
  const GroupPlace place = isPlaced ? declared.Indexes() : PlaceOf(*field, match);
  return {!isText, std::move(name), std::move(value), DescriptionOf(declared, isText), place};
}

FoundFields NormalFields(std::span<const CVIFField> declared) {
  FoundFields fields;
  fields.reserve(declared.size());
  for (const CVIFField& field : declared) fields.push_back({Normal(field), 0, 0, {}});
  return fields;
}

}  // namespace

CNormalFile::CNormalFile(std::span<const CVIFField> declared)
    : m_declared(declared), m_fields(NormalFields(declared)), m_view(m_fields) {}

}  // namespace vifanalysis

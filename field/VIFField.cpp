#include "VIFField.h"

#include "Errors.h"
#include "NamePattern.h"

#include <algorithm>
#include <charconv>
#include <string_view>
#include <utility>

namespace {

char UpperAscii(char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; }

bool EqualsKeyword(std::string_view text, std::string_view upperCaseKeyword) {
  return std::equal(text.begin(), text.end(), upperCaseKeyword.begin(), upperCaseKeyword.end(),
                    [](char c, char keyword) { return UpperAscii(c) == keyword; });
}

EVifLocation Location(const VifIndex& index) { return std::get<0>(index); }
std::uint64_t Number(const VifIndex& index) { return std::get<1>(index); }

}  // namespace

// The library has the constants, and exports them, only because they are declared here again.
constexpr std::size_t CVIFField::MAX_INDEX_DEPTH;         // NOLINT(readability-redundant-declaration)
constexpr VifIndexNumber CVIFField::INDEX_NOT_SPECIFIED;  // NOLINT(readability-redundant-declaration)
constexpr VifIndex CVIFField::UNSPECIFIED_INDEX;          // NOLINT(readability-redundant-declaration)
constexpr std::uint64_t CVIFField::VIF_VALUE_UNSET_64;    // NOLINT(readability-redundant-declaration)
constexpr std::uint32_t CVIFField::VIF_VALUE_UNSET;       // NOLINT(readability-redundant-declaration)

// The empty field is deliberately numeric: its number is "unset", and asking for it does not fail.
CVIFField::CVIFField()
    : m_indexes{UNSPECIFIED_INDEX, UNSPECIFIED_INDEX, UNSPECIFIED_INDEX},
      m_numericValue(VIF_VALUE_UNSET_64),
      m_isNumeric(true) {}

// Without a description of its own a field deliberately repeats its value there.
CVIFField::CVIFField(bool isNumeric, const std::string& name, const std::string& value,
                     const std::array<VifIndex, MAX_INDEX_DEPTH>& indexes)
    : CVIFField(isNumeric, name, value, value, indexes) {}

CVIFField::CVIFField(bool isNumeric, const std::string& name, const std::string& value, const VifIndex& index1,
                     const VifIndex& index2, const VifIndex& index3)
    : CVIFField(isNumeric, name, value, value, {index1, index2, index3}) {}

CVIFField::CVIFField(bool isNumeric, const std::string& name, const std::string& value, const std::string& description,
                     const std::array<VifIndex, MAX_INDEX_DEPTH>& indexes)
    : m_indexes(indexes),
      m_name(name),
      m_numericValue(InitNumericValue(value, isNumeric)),
      m_isNumeric(isNumeric),
      m_value(value),
      m_description(description) {}

CVIFField::CVIFField(bool isNumeric, std::string&& name, std::string&& value, std::string&& description,
                     const std::array<VifIndex, MAX_INDEX_DEPTH>& indexes)
    : m_indexes(indexes),
      m_name(std::move(name)),
      m_numericValue(InitNumericValue(value, isNumeric)),
      m_isNumeric(isNumeric),
      m_value(std::move(value)),
      m_description(std::move(description)) {}

CVIFField::CVIFField(bool isNumeric, const std::string& name, const std::string& value, const std::string& description,
                     const VifIndex& index1, const VifIndex& index2, const VifIndex& index3)
    : CVIFField(isNumeric, name, value, description, {index1, index2, index3}) {}

CVIFField::CVIFField(const CVIFField& other) = default;
CVIFField& CVIFField::operator=(const CVIFField& other) {
  // Copied first, so that memory that runs out leaves this field whole.
  if (this != &other) *this = CVIFField(other);
  return *this;
}
CVIFField::CVIFField(CVIFField&& other) noexcept = default;
CVIFField::~CVIFField() = default;

CVIFField& CVIFField::operator=(CVIFField&& other) noexcept {
  if (this == &other) return *this;
  std::swap(m_name, other.m_name);
  std::swap(m_value, other.m_value);
  std::swap(m_description, other.m_description);
  std::swap(m_indexes, other.m_indexes);
  // Taken, not swapped: the source keeps its own flag and number.
  m_isNumeric = other.m_isNumeric;
  m_numericValue = other.m_numericValue;
  return *this;
}

const char* CVIFField::Name() const noexcept { return m_name.get(); }
const char* CVIFField::Value() const noexcept { return m_value.get(); }
const char* CVIFField::Description() const noexcept { return m_description.get(); }
bool CVIFField::IsNumeric() const noexcept { return m_isNumeric; }

const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& CVIFField::Indexes() const noexcept { return m_indexes; }

std::size_t CVIFField::IndexCount() const noexcept {
  return static_cast<std::size_t>(std::count_if(m_indexes.begin(), m_indexes.end(),
                                                [](const VifIndex& slot) { return Location(slot) != eVifLocUnset; }));
}

VifIndexNumber CVIFField::Index(EVifLocation location) const noexcept {
  // An unused slot's number means nothing, so location 0 has none, although HasIndex may find such a slot.
  if (location == eVifLocUnset) return INDEX_NOT_SPECIFIED;
  for (const VifIndex& slot : m_indexes) {
    if (Location(slot) == location) return Number(slot);
  }
  return INDEX_NOT_SPECIFIED;
}

bool CVIFField::HasIndex(EVifLocation location) const noexcept {
  return std::any_of(m_indexes.begin(), m_indexes.end(),
                     [&](const VifIndex& slot) { return Location(slot) == location; });
}

// The subtraction is meant to wrap: callers compare with the wrapped value.
VifIndexNumber CVIFField::ComponentIndex() noexcept { return Index(eVifLocComponent) - 1; }

std::uint64_t CVIFField::GetULongNumericValue() const {
  if (!m_isNumeric) vif::ThrowRunTimeError("Field '%s' is not Numeric.", Name());
  return m_numericValue;
}

// Unlike GetULongNumericValue this does not look at the flag; a field that is not numeric has the unset value.
std::uint32_t CVIFField::GetNumericValue() const noexcept {
  return m_numericValue == VIF_VALUE_UNSET_64 ? VIF_VALUE_UNSET : static_cast<std::uint32_t>(m_numericValue);
}

bool CVIFField::MatchesSlot(const VifIndex& query) const noexcept {
  if (Location(query) == eVifLocUnset) return true;
  if (!HasIndex(Location(query))) return false;
  return Number(query) == INDEX_NOT_SPECIFIED || Index(Location(query)) == Number(query);
}

bool CVIFField::Match(const char* pattern, const VifIndex& index1, const VifIndex& index2,
                      const VifIndex& index3) const {
  if (!MatchesSlot(index1) || !MatchesSlot(index2) || !MatchesSlot(index3)) return false;
  if (pattern == nullptr || *pattern == '\0') return true;
  return vif::CNamePattern(pattern).Matches(Name());
}

bool CVIFField::Match(const char* pattern, const std::array<VifIndex, MAX_INDEX_DEPTH>& query) const {
  return Match(pattern, query[0], query[1], query[2]);
}

CSafeString CVIFField::MakeOutputString() const {
  const char* quote = m_isNumeric ? "" : "\"";
  return std::string(Name()) + "=" + quote + Value() + quote;
}

std::uint64_t CVIFField::InitNumericValue(const std::string& text, bool isNumeric) {
  if (!isNumeric) return VIF_VALUE_UNSET_64;
  if (EqualsKeyword(text, "NO") || EqualsKeyword(text, "FALSE")) return 0;
  if (EqualsKeyword(text, "YES") || EqualsKeyword(text, "TRUE")) return 1;

  const bool isHexadecimal = text.size() >= 2 && text[0] == '0' && UpperAscii(text[1]) == 'X';
  const char* begin = text.data() + (isHexadecimal ? 2 : 0);
  std::uint64_t number = 0;
  const auto [end, error] = std::from_chars(begin, text.data() + text.size(), number, isHexadecimal ? 16 : 10);
  return error == std::errc() ? number : VIF_VALUE_UNSET_64;
}

// One query over a list of fields.
#pragma once

#include "NamePattern.h"
#include "VIFField.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <vector>

namespace vif {

using QuerySlots = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

/// Selects fields as `CVIFField::Match` does, but compiles the pattern at most once, when the first field's locations
/// pass. Nothing is allocated unless the pattern is a regular expression.
class CFieldQuery {
 public:
  /// \param pattern borrowed; null or empty means any name
  CFieldQuery(const char* pattern, const QuerySlots& slots) : m_pattern(pattern), m_slots(slots) {}

  bool Passes(const CVIFField& field) { return PassesLocations(field) && PassesName(field); }
  bool PassesLocations(const CVIFField& field) const { return field.Match(nullptr, m_slots); }
  bool PassesName(const CVIFField& field);

 private:
  const char* m_pattern;
  QuerySlots m_slots;
  std::optional<CNamePattern> m_compiled;
};

/// What a query that wants one field has found.
struct FoundFields {
  std::size_t count = 0;
  const CVIFField* first = nullptr;  // borrowed from the list; null when the count is 0
};

FoundFields FindFields(const std::vector<CVIFField>& fields, CFieldQuery query);

/// Copies of the passing fields of the lowest component number below `componentCount` that has any. The query's slots
/// are those besides the component.
std::vector<CVIFField> FirstComponentFields(const std::vector<CVIFField>& fields, std::uint32_t componentCount,
                                            CFieldQuery query);

}  // namespace vif

#include "FieldQuery.h"

#include <map>

namespace vif {

CFieldQuery::CFieldQuery(const char* pattern, const QuerySlots& slots)
    : m_pattern(pattern != nullptr && *pattern != '\0' ? pattern : nullptr) {
  for (const auto& [location, number] : slots) {
    if (location == eVifLocUnset) continue;
    const bool anyNumber = number == CVIFField::INDEX_NOT_SPECIFIED;
    m_asked[m_askedCount++] = {location, number, anyNumber ? 0 : ~std::uint64_t{0}};
  }
}

FoundFields FindFields(const std::vector<CVIFField>& fields, CFieldQuery query) {
  FoundFields found;
  for (const CVIFField& field : fields) {
    if (query.Passes(field) && found.count++ == 0) found.first = &field;
  }
  return found;
}

std::vector<CVIFField> FirstComponentFields(const std::vector<CVIFField>& fields, std::uint32_t componentCount,
                                            CFieldQuery query) {
  // Sorted by component before a name is looked at: a name in a later component must not be able to fail the query.
  std::map<VifIndexNumber, std::vector<const CVIFField*>> byComponent;
  for (const CVIFField& field : fields) {
    const VifIndexNumber component = field.Index(eVifLocComponent);
    if (component < componentCount && query.PassesLocations(field)) byComponent[component].push_back(&field);
  }
  std::vector<CVIFField> passing;
  for (const auto& [component, candidates] : byComponent) {
    for (const CVIFField* field : candidates) {
      if (query.PassesName(*field)) passing.push_back(*field);
    }
    if (!passing.empty()) break;
  }
  return passing;
}

}  // namespace vif

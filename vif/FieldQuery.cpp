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

CDigestFilter CFieldQuery::Filter(std::size_t digestCount) const {
  // Asking the locale about every character takes longer than comparing this many names.
  constexpr std::size_t fewFields = 500;
  CDigestFilter filter;
  for (std::size_t i = 0; i < m_askedCount; ++i) filter.AskForSlot({m_asked[i].location, m_asked[i].number});
  if (m_pattern != nullptr && digestCount > fewFields && IsPlainPattern(m_pattern)) filter.AskForName(m_pattern);
  return filter;
}

FoundFields FindFields(const SearchedFields& searched, CFieldQuery query) {
  FoundFields found;
  ForEachPassing(searched, query, [&](const CVIFField& field) {
    if (found.count++ == 0) found.first = &field;
  });
  return found;
}

std::vector<const CVIFField*> FirstComponentFields(const std::vector<CVIFField>& fields, std::uint32_t componentCount,
                                                   CFieldQuery query) {
  // Sorted by component before any name is matched: a name in a later component must not make the query fail.
  std::map<VifIndexNumber, std::vector<const CVIFField*>> byComponent;
  for (const CVIFField& field : fields) {
    const VifIndexNumber component = field.Index(eVifLocComponent);
    if (component < componentCount && query.PassesLocations(field)) byComponent[component].push_back(&field);
  }
  std::vector<const CVIFField*> passing;
  for (const auto& [component, candidates] : byComponent) {
    for (const CVIFField* field : candidates) {
      if (query.PassesName(*field)) passing.push_back(field);
    }
    if (!passing.empty()) break;
  }
  return passing;
}

}  // namespace vif

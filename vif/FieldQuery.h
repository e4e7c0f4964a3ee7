// One query over a list of fields.
#pragma once

#include "FieldDigest.h"
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
/// match, and compares locations without a call for each field. Allocates nothing unless the pattern is a regular
/// expression.
class CFieldQuery {
 public:
  /// \param pattern borrowed; null or empty means any name
  CFieldQuery(const char* pattern, const QuerySlots& slots);

  bool Passes(const CVIFField& field) { return PassesLocations(field) && PassesName(field); }
  bool PassesLocations(const CVIFField& field) const;
  bool PassesName(const CVIFField& field);

  /// The filter for scanning that many digests.
  CDigestFilter Filter(std::size_t digestCount) const;

 private:
  /// A slot of the query that is not a wildcard.
  struct AskedSlot {
    EVifLocation location = eVifLocUnset;
    std::uint64_t number = 0;
    std::uint64_t relevantBits = 0;  // of the number: all of them, or none where any number will do

    bool IsPassedBy(const QuerySlots& fieldSlots) const;
  };

  const char* m_pattern;  // null for any name
  std::array<AskedSlot, CVIFField::MAX_INDEX_DEPTH> m_asked;
  std::size_t m_askedCount = 0;
  std::optional<CNamePattern> m_compiled;
};

inline bool CFieldQuery::AskedSlot::IsPassedBy(const QuerySlots& fieldSlots) const {
  for (const auto& [slotLocation, slotNumber] : fieldSlots) {
    if (slotLocation == location) return ((slotNumber ^ number) & relevantBits) == 0;
  }
  return false;
}

inline bool CFieldQuery::PassesLocations(const CVIFField& field) const {
  for (std::size_t i = 0; i < m_askedCount; ++i) {
    if (!m_asked[i].IsPassedBy(field.m_indexes)) return false;
  }
  return true;
}

inline bool CFieldQuery::PassesName(const CVIFField& field) {
  if (m_pattern == nullptr) return true;
  if (!m_compiled) m_compiled.emplace(m_pattern);
  return m_compiled->Matches(field.m_name.get());
}

/// The fields of an object and the digests of the first of them; borrowed.
struct SearchedFields {
  const std::vector<CVIFField>& fields;
  const CFieldDigests& digests;
};

/// Calls `visit` with each field that passes, in the order of the list.
template <typename Visit>
void ForEachPassing(const SearchedFields& searched, CFieldQuery& query, const Visit& visit) {
  const std::vector<CVIFField>& fields = searched.fields;
  const std::vector<FieldDigest>& digests = searched.digests.All();
  const CDigestFilter filter = query.Filter(digests.size());
  auto field = fields.begin();
  if (filter.AsksForAnything()) {
    for (const FieldDigest digest : digests) {
      if (filter.MayPass(digest) && query.Passes(*field)) visit(*field);
      ++field;
    }
  }
  for (; field != fields.end(); ++field) {
    if (query.Passes(*field)) visit(*field);
  }
}

/// What a query for a single field has found.
struct FoundFields {
  std::size_t count = 0;
  const CVIFField* first = nullptr;  // borrowed from the list; null when the count is 0
};

FoundFields FindFields(const SearchedFields& searched, CFieldQuery query);

/// The passing fields, borrowed, of the lowest component number below `componentCount` that has any. The query's slots
/// are those besides the component.
std::vector<const CVIFField*> FirstComponentFields(const std::vector<CVIFField>& fields, std::uint32_t componentCount,
                                                   CFieldQuery query);

}  // namespace vif

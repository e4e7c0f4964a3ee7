// A summary of each field that lets a query skip most fields without reading them.
#pragma once

#include "VIFField.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vif {

/// A summary of one field, enough to rule most fields out of a query: 16 bits for each slot, from the lowest bits up,
/// and 16 for the name, ignoring letter case. Scanning digests takes a fraction of the time of scanning fields, which
/// are twenty times as large and keep their names elsewhere.
using FieldDigest = std::uint64_t;

/// The digests of a list's fields, from the first on. The list may grow, but its fields must not change. There may be
/// fewer digests than fields.
class CFieldDigests {
 public:
  /// Adds the digests of the fields that have been appended to the list, or none if memory runs out.
  void Cover(const std::vector<CVIFField>& fields) noexcept;

  const std::vector<FieldDigest>& All() const { return m_digests; }

 private:
  static FieldDigest DigestOf(const CVIFField& field);

  std::vector<FieldDigest> m_digests;
};

/// Tells from a field's digest that the field cannot match a query.
class CDigestFilter {
 public:
  /// Requires a slot with that location, and with that number unless it is `INDEX_NOT_SPECIFIED`. Call it at most once
  /// for each slot that a field has.
  void AskForSlot(const VifIndex& slot);

  /// Requires a name that matches a plain pattern, ignoring letter case as the global locale defines it. Does nothing
  /// if names that are equal in that locale could have different digests.
  void AskForName(std::string_view plainPattern);

  bool AsksForAnything() const { return m_slotCount > 0 || m_name.relevantBits != 0; }

  /// Whether the field may match; false only if it cannot.
  bool MayPass(FieldDigest digest) const {
    return m_name.HasAllIn(digest) && m_slots[0].HasOneSlotIn(digest) && m_slots[1].HasOneSlotIn(digest) &&
           m_slots[2].HasOneSlotIn(digest);
  }

 private:
  /// Without relevant bits, it matches every digest.
  struct Asked {
    FieldDigest bits = 0;
    FieldDigest relevantBits = 0;

    bool HasAllIn(FieldDigest digest) const { return ((digest ^ bits) & relevantBits) == 0; }

    /// Whether one of the three slots has all relevant bits.
    bool HasOneSlotIn(FieldDigest digest) const {
      // Subtracting 1 from each slot's difference sets its highest bit, unless that was set already, just when the
      // difference is 0. Only a slot that is 0 borrows from the next.
      constexpr FieldDigest lowestBits = 0x0000'0001'0001'0001;
      constexpr FieldDigest highestBits = 0x0000'8000'8000'8000;
      const FieldDigest difference = (digest ^ bits) & relevantBits;
      return ((difference - lowestBits) & ~difference & highestBits) != 0;
    }
  };

  std::array<Asked, CVIFField::MAX_INDEX_DEPTH> m_slots;
  std::size_t m_slotCount = 0;
  Asked m_name;
};

}  // namespace vif

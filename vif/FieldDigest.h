// What a query looks at before it looks at a field.
#pragma once

#include "VIFField.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace vif {

/// Rules most fields out of a query: 16 bits for each slot, from the lowest bits up, and 16 for the name, whose letter
/// case does not count. Going through many digests takes a fraction of the time that going through the fields takes,
/// which are twenty times as large and keep their names elsewhere.
using FieldDigest = std::uint64_t;

/// The digests of the first fields of a list whose fields stay as they are while it grows. There may be fewer digests
/// than fields.
class CFieldDigests {
 public:
  /// Adds the digests of the fields that have been appended to the list, or none when memory runs out.
  void Cover(const std::vector<CVIFField>& fields) noexcept;

  const std::vector<FieldDigest>& All() const { return m_digests; }

 private:
  static FieldDigest DigestOf(const CVIFField& field);

  std::vector<FieldDigest> m_digests;
};

/// Tells from a field's digest that the field does not pass a query.
class CDigestFilter {
 public:
  /// Asks for a slot with that location, and with that number unless it is `INDEX_NOT_SPECIFIED`. Not to be called more
  /// often than a field has slots.
  void AskForSlot(const VifIndex& slot);

  /// Asks for a name that fits a plain pattern, without regard to letter case as the global locale has it. Does nothing
  /// when a digest could differ between names that are the same in that locale.
  void AskForName(std::string_view plainPattern);

  bool AsksForAnything() const { return m_slotCount > 0 || m_name.relevantBits != 0; }

  /// Whether the field may pass; false only if it does not.
  bool MayPass(FieldDigest digest) const {
    return m_name.HasAllIn(digest) && m_slots[0].HasOneSlotIn(digest) && m_slots[1].HasOneSlotIn(digest) &&
           m_slots[2].HasOneSlotIn(digest);
  }

 private:
  /// Without relevant bits, all digests have them.
  struct Asked {
    FieldDigest bits = 0;
    FieldDigest relevantBits = 0;

    bool HasAllIn(FieldDigest digest) const { return ((digest ^ bits) & relevantBits) == 0; }

    /// Whether one of the three slots has all relevant bits.
    bool HasOneSlotIn(FieldDigest digest) const {
      // Subtracting 1 from each slot's difference sets its highest bit, where that is not set already, just when it is
      // 0; what is borrowed beyond a slot comes from one that is 0.
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

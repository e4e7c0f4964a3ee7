// Finds a known field by its name, in the time it takes to read the name once.
#pragma once

#include "KnownFields.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vif {

/// A known field and the digits at its index marks.
struct KnownFieldMatch {
  const KnownField* field = nullptr;            // null if no field has the name
  std::string_view canonicalName;               // lives as long as the index
  std::array<std::string_view, 2> indexDigits;  // parts of the name passed in; empty where there is no mark
};

/// Does in plain code what the patterns of the built-in definition table describe.
///
/// A name is hashed without its digits, whether they are an index or part of the name. Only the few fields with the
/// same hash are then compared with the full name.
class CKnownFieldIndex {
 public:
  CKnownFieldIndex();

  /// The field with that name. Throws nothing; may be called from any number of threads at once.
  KnownFieldMatch Find(std::string_view name) const;

 private:
  struct Entry {
    std::uint32_t hash = 0;
    const KnownField* field = nullptr;  // null in a free slot
    std::string_view spelling;
    std::string canonicalName;
  };

  void Add(std::string_view spelling, const KnownField& field);

  std::vector<Entry> m_slots;  // open addressing; a power of two, at most half full
};

/// The index over all known fields, built while the library is loaded.
const CKnownFieldIndex& BuiltInFieldIndex();

}  // namespace vif

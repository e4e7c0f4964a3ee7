#include "KnownFieldIndex.h"

#include <algorithm>
#include <bit>
#include <utility>

namespace vif {

namespace {

bool IsDigit(char c) { return c >= '0' && c <= '9'; }

/// FNV-1a over everything but digits and index marks.
std::uint32_t HashWithoutDigits(std::string_view text) {
  std::uint32_t hash = 2166136261U;
  for (const char c : text) {
    if (!IsDigit(c) && c != kIndexMark) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619U;
  }
  return hash;
}

/// Whether the name matches the spelling; `digits` receives the digits at its marks.
bool MatchesSpelling(std::string_view name, std::string_view spelling, std::array<std::string_view, 2>& digits) {
  size_t mark = 0;
  size_t at = 0;
  for (const char expected : spelling) {
    if (expected == kIndexMark) {
      const size_t begin = at;
      while (at < name.size() && IsDigit(name[at])) ++at;
      digits[mark++] = name.substr(begin, at - begin);
    } else if (at < name.size() && name[at] == expected) {
      ++at;
    } else {
      return false;
    }
  }
  return at == name.size();
}

std::string WithoutMarks(std::string_view spelling) {
  std::string name(spelling);
  std::erase(name, kIndexMark);
  return name;
}

}  // namespace

CKnownFieldIndex::CKnownFieldIndex() : m_slots(std::bit_ceil(2 * (KnownFields().size() + 1))) {
  for (const KnownField& field : KnownFields()) {
    Add(field.spelling, field);
    if (field.spelling == kCableController) Add(kCableControllerWithPrimes, field);
  }
}

void CKnownFieldIndex::Add(std::string_view spelling, const KnownField& field) {
  const std::uint32_t hash = HashWithoutDigits(spelling);
  size_t slot = hash & (m_slots.size() - 1);
  while (m_slots[slot].field != nullptr) slot = (slot + 1) & (m_slots.size() - 1);
  m_slots[slot] = {hash, &field, spelling, WithoutMarks(field.spelling)};
}

KnownFieldMatch CKnownFieldIndex::Find(std::string_view name) const {
  const std::uint32_t hash = HashWithoutDigits(name);
  for (size_t slot = hash & (m_slots.size() - 1); m_slots[slot].field != nullptr;
       slot = (slot + 1) & (m_slots.size() - 1)) {
    const Entry& entry = m_slots[slot];
    KnownFieldMatch match;
    if (entry.hash == hash && MatchesSpelling(name, entry.spelling, match.indexDigits)) {
      match.field = entry.field;
      match.canonicalName = entry.canonicalName;
      return match;
    }
  }
  return {};
}

const CKnownFieldIndex& BuiltInFieldIndex() {
  static const CKnownFieldIndex index;
  return index;
}

namespace {

// Builds the index while the library is loaded, as the table itself is built.
// NOLINTNEXTLINE(cert-err58-cpp)
[[maybe_unused]] const CKnownFieldIndex& builtAtLoad = BuiltInFieldIndex();

}  // namespace

}  // namespace vif

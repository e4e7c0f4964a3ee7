#include "FieldDigest.h"

#include <algorithm>
#include <cstring>
#include <locale>
#include <new>
#include <tuple>

namespace vif {

namespace {

constexpr unsigned kBitsPerPart = 16;
constexpr unsigned kLocationBits = 4;
constexpr FieldDigest kLocationMask = (1U << kLocationBits) - 1;
constexpr FieldDigest kPartMask = (1U << kBitsPerPart) - 1;
constexpr FieldDigest kEverySlot = 0x0000'0001'0001'0001;
constexpr FieldDigest kNameBits = kPartMask << (kBitsPerPart * CVIFField::MAX_INDEX_DEPTH);
static_assert(CVIFField::MAX_INDEX_DEPTH == 3, "a digest has room for three slots and the name");

/// The bits of a character that count for a digest: all but the one that distinguishes ASCII capitals from small
/// letters.
constexpr unsigned char kCaselessBits = 0xDF;
constexpr std::uint64_t kCaselessWord = std::uint64_t{kCaselessBits} * 0x0101'0101'0101'0101;

FieldDigest SlotPart(const VifIndex& slot) {
  const auto location = static_cast<FieldDigest>(std::get<0>(slot));
  return ((std::get<1>(slot) << kLocationBits) | (location & kLocationMask)) & kPartMask;
}

std::uint64_t Mixed(std::uint64_t hash, std::uint64_t word) {
  hash = (hash ^ (word & kCaselessWord)) * 0x9E37'79B9'7F4A'7C15;
  return hash ^ (hash >> 32U);
}

/// The next eight characters.
std::uint64_t Word(const char* text) {
  std::uint64_t word = 0;
  std::memcpy(&word, text, sizeof(word));
  return word;
}

/// The whole of a text that is shorter than a word.
std::uint64_t ShortWord(std::string_view text) {
  std::uint64_t word = 0;
  for (const char c : text) word = (word << 8U) | static_cast<unsigned char>(c);
  return word;
}

/// The name's bits of a digest: a hash of it.
FieldDigest NamePart(std::string_view name) {
  constexpr std::size_t wordSize = sizeof(std::uint64_t);
  std::uint64_t hash = name.size();
  if (name.size() < wordSize) {
    hash = Mixed(hash, ShortWord(name));
  } else {
    for (std::size_t i = 0; i + wordSize < name.size(); i += wordSize) hash = Mixed(hash, Word(name.data() + i));
    hash = Mixed(hash, Word(name.data() + name.size() - wordSize));
  }
  return hash & kNameBits;  // the highest, to which every character contributes
}

unsigned char Caseless(char c) { return static_cast<unsigned char>(c) & kCaselessBits; }

/// Whether every character that the global locale considers equal to one of the pattern, ignoring letter case, is also
/// equal to it in a digest.
bool IsCaseKnown(std::string_view pattern) {
  const std::locale locale;
  const auto& ctype = std::use_facet<std::ctype<char>>(locale);
  constexpr std::int16_t notInPattern = -1;
  std::array<std::int16_t, 256> caselessOfLower;
  caselessOfLower.fill(notInPattern);
  for (const char c : pattern) caselessOfLower[static_cast<unsigned char>(ctype.tolower(c))] = Caseless(c);
  for (int i = 1; i < 256; ++i) {
    const char c = static_cast<char>(i);
    const std::int16_t expected = caselessOfLower[static_cast<unsigned char>(ctype.tolower(c))];
    if (expected != notInPattern && expected != Caseless(c)) return false;
  }
  return true;
}

}  // namespace

FieldDigest CFieldDigests::DigestOf(const CVIFField& field) {
  FieldDigest digest = NamePart(field.m_name.get());
  unsigned shift = 0;
  for (const VifIndex& slot : field.m_indexes) {
    digest |= SlotPart(slot) << shift;
    shift += kBitsPerPart;
  }
  return digest;
}

void CFieldDigests::Cover(const std::vector<CVIFField>& fields) noexcept {
  try {
    // At least doubles, or appending many short lists would copy the digests each time.
    if (fields.size() > m_digests.capacity()) m_digests.reserve(std::max(fields.size(), 2 * m_digests.capacity()));
    for (std::size_t i = m_digests.size(); i < fields.size(); ++i) m_digests.push_back(DigestOf(fields[i]));
  } catch (const std::bad_alloc&) {  // NOLINT(bugprone-empty-catch)
    // Where there are no digests, queries read the fields themselves.
  }
}

void CDigestFilter::AskForSlot(const VifIndex& slot) {
  const bool anyNumber = std::get<1>(slot) == CVIFField::INDEX_NOT_SPECIFIED;
  m_slots[m_slotCount++] = {SlotPart(slot) * kEverySlot, (anyNumber ? kLocationMask : kPartMask) * kEverySlot};
}

void CDigestFilter::AskForName(std::string_view plainPattern) {
  if (IsCaseKnown(plainPattern)) m_name = {NamePart(plainPattern), kNameBits};
}

}  // namespace vif

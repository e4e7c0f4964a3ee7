// Queries by location compared with `CVIFField::Match`, over generated fields and queries: each of the two holds the
// same rule in its own way.
#include "VendorInfoFile.h"
#include "support/FieldText.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <limits>
#include <random>
#include <string>
#include <vector>

namespace {

using testsupport::RandomBelow;

using Slots = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

constexpr VifIndexNumber kAny = CVIFField::INDEX_NOT_SPECIFIED;

class CGenerator {
 public:
  /// So few locations that a field often has one twice, and some that no file has.
  VifIndex Slot() {
    using Limits = std::numeric_limits<std::int32_t>;
    constexpr EVifLocation locations[] = {eVifLocUnset,
                                          eVifLocUnset,
                                          eVifLocComponent,
                                          eVifLocComponent,
                                          eVifLocSrcPdo,
                                          eVifLocCableSvidMode,
                                          static_cast<EVifLocation>(13),
                                          static_cast<EVifLocation>(eVifLocComponent + 16),
                                          static_cast<EVifLocation>(70),
                                          static_cast<EVifLocation>(-1),
                                          static_cast<EVifLocation>(Limits::max()),
                                          static_cast<EVifLocation>(Limits::min())};
    constexpr std::uint64_t numbers[] = {0, 1, 1, 2, 0x1001, std::uint64_t{1} << 32, kAny - 1, kAny, kAny};
    return {locations[RandomBelow(m_random, std::size(locations))], numbers[RandomBelow(m_random, std::size(numbers))]};
  }

  Slots AnySlots() { return {Slot(), Slot(), Slot()}; }

  /// Slots that many fields pass: some of them unused, with any number.
  Slots QuerySlots() {
    Slots slots = AnySlots();
    for (VifIndex& slot : slots) {
      if (RandomBelow(m_random, 2) == 0) slot = {eVifLocUnset, RandomBelow(m_random, 3)};
    }
    return slots;
  }

  std::vector<CVIFField> Fields(std::size_t count) {
    std::vector<CVIFField> fields;
    while (fields.size() < count) fields.emplace_back(true, "Name", std::to_string(fields.size()), AnySlots());
    return fields;
  }

 private:
  std::mt19937_64 m_random = testsupport::SeededGenerator();
};

std::string Shown(const Slots& slots) {
  std::string text = "query";
  for (const auto& [location, number] : slots) {
    text.append(" (").append(std::to_string(location)).append(", ").append(std::to_string(number)).append(")");
  }
  return text;
}

std::vector<CVIFField> Matching(const std::vector<CVIFField>& fields, const char* pattern, const Slots& query) {
  std::vector<CVIFField> matching;
  std::copy_if(fields.begin(), fields.end(), std::back_inserter(matching),
               [&](const CVIFField& field) { return field.Match(pattern, query); });
  return matching;
}

/// \param pattern one that fits every field's name
void ExpectAgreementWithMatch(const char* pattern) {
  SCOPED_TRACE(testsupport::SeedMessage());
  CGenerator generator;
  const std::vector<CVIFField> fields = generator.Fields(500);
  const CVendorInfoFile vif(fields);
  std::size_t selective = 0;
  for (int i = 0; i < 1000; ++i) {
    const Slots query = generator.QuerySlots();
    const std::vector<CVIFField> expected = Matching(fields, pattern, query);
    selective += !expected.empty() && expected.size() < fields.size() ? 1U : 0U;
    ASSERT_EQ(vif.Count(pattern, query), expected.size()) << Shown(query);
    ASSERT_EQ(testsupport::FieldTexts(*vif.GetFields(pattern, query)), testsupport::FieldTexts(expected))
        << Shown(query);
  }
  EXPECT_GT(selective, 500U);
}

TEST(LocationQueryDifferential, AgreesWithMatchOnAnyName) { ExpectAgreementWithMatch(nullptr); }

TEST(LocationQueryDifferential, AgreesWithMatchOnAName) { ExpectAgreementWithMatch("name"); }

TEST(LocationQueryDifferential, TakesTheFirstOfTwoSlotsWithOneLocation) {
  const EVifLocation odd = static_cast<EVifLocation>(70);
  const VifIndex unused = CVIFField::UNSPECIFIED_INDEX;
  const CVendorInfoFile vif(
      std::vector<CVIFField>{CVIFField(true, "Name", "1", VifIndex{odd, 1}, VifIndex{odd, 2}, unused)});
  EXPECT_EQ(vif.Count(nullptr, VifIndex{odd, 1}, unused, unused), 1U);
  EXPECT_EQ(vif.Count(nullptr, VifIndex{odd, 2}, unused, unused), 0U);
  EXPECT_EQ(vif.Count(nullptr, VifIndex{odd, 1}, VifIndex{odd, 2}, unused), 0U);
  EXPECT_EQ(vif.Count(nullptr, VifIndex{odd, kAny}, VifIndex{odd, 1}, VifIndex{odd, kAny}), 1U);
}

}  // namespace

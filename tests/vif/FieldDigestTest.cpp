// Digests of fields and the filters that look at them. Against the objects, because they are no part of the public
// interface.
#include "FieldDigest.h"

#include "FieldQuery.h"
#include "support/Latin1Locale.h"
#include "support/OddCaseLocale.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <random>
#include <string>
#include <vector>

namespace {

using testsupport::CScopedGlobalLocale;
using testsupport::RandomBelow;
using vif::CDigestFilter;
using vif::CFieldDigests;
using vif::CFieldQuery;
using vif::FieldDigest;
using vif::QuerySlots;

constexpr VifIndex kUnused = CVIFField::UNSPECIFIED_INDEX;
constexpr std::uint64_t kAny = CVIFField::INDEX_NOT_SPECIFIED;

CVIFField Field(const std::string& name, const QuerySlots& slots = {kUnused, kUnused, kUnused}) {
  return {true, name, "1", slots};
}

FieldDigest DigestOf(const CVIFField& field) {
  CFieldDigests digests;
  digests.Cover({field});
  return digests.All().front();
}

bool MayHaveName(const char* pattern, const char* name) {
  CDigestFilter filter;
  filter.AskForName(pattern);
  return filter.MayPass(DigestOf(Field(name)));
}

bool MayHaveSlot(const VifIndex& asked, const QuerySlots& slots) {
  CDigestFilter filter;
  filter.AskForSlot(asked);
  return filter.MayPass(DigestOf(Field("Name", slots)));
}

TEST(FieldDigests, CoverWhatIsAppended) {
  std::vector<CVIFField> fields = {Field("A")};
  CFieldDigests digests;
  digests.Cover(fields);
  const FieldDigest first = digests.All().at(0);
  fields.push_back(Field("B"));
  EXPECT_EQ(digests.All().size(), 1U);
  digests.Cover(fields);
  EXPECT_EQ(digests.All(), (std::vector<FieldDigest>{first, DigestOf(Field("B"))}));
}

TEST(FieldDigests, DoNotDependOnLetterCase) {
  EXPECT_EQ(DigestOf(Field("Src_PDO_Voltage")), DigestOf(Field("SRC_pdo_vOLTAGE")));
  EXPECT_EQ(DigestOf(Field("PDO")), DigestOf(Field("pdo")));
}

TEST(DigestFilter, PassesEverythingUntilItAsksForSomething) {
  const CDigestFilter filter;
  EXPECT_FALSE(filter.AsksForAnything());
  EXPECT_TRUE(filter.MayPass(DigestOf(Field("Name"))));
  EXPECT_TRUE(filter.MayPass(DigestOf(Field("", {VifIndex{eVifLocComponent, 1}, kUnused, kUnused}))));
}

TEST(DigestFilter, TellsNamesApart) {
  EXPECT_TRUE(MayHaveName("src_pdo_voltage", "Src_PDO_Voltage"));
  EXPECT_TRUE(MayHaveName("PDO", "pdo"));
  EXPECT_FALSE(MayHaveName("Src_PDO_Voltage", "Snk_PDO_Voltage"));
  EXPECT_FALSE(MayHaveName("Src_PDO_Voltage", "Src_PDO_Voltag"));
  EXPECT_FALSE(MayHaveName("Src_PDO_Voltage", "Src_PDO_Voltage_"));
  EXPECT_FALSE(MayHaveName("PDO", "PDP"));
  EXPECT_FALSE(MayHaveName("PDO", ""));
}

TEST(DigestFilter, TellsNamesApartWhereverTheyDiffer) {
  for (std::size_t size = 1; size < 40; ++size) {
    const std::string name(size, 'a');
    EXPECT_TRUE(MayHaveName(std::string(size, 'A').c_str(), name.c_str()));
    for (std::size_t i = 0; i < size; ++i) {
      std::string other = name;
      other[i] = 'b';
      EXPECT_FALSE(MayHaveName(name.c_str(), other.c_str())) << size << " characters, of which " << i << " differs";
    }
  }
}

TEST(DigestFilter, FollowsTheLetterCaseOfTheLocale) {
  const CScopedGlobalLocale latin1(testsupport::Latin1Locale());
  EXPECT_TRUE(MayHaveName("\xC9t\xC9", "\xE9T\xE9"));
  EXPECT_FALSE(MayHaveName("\xC9", "\xE8"));
}

TEST(DigestFilter, DoesNotAskForANameInALocaleThatDigestsDoNotFollow) {
  const CScopedGlobalLocale odd(testsupport::OddCaseLocale());
  for (const char* pattern : {"1", "2", "Name_1", "a", "A", "\x80"}) {
    CDigestFilter filter;
    filter.AskForName(pattern);
    EXPECT_FALSE(filter.AsksForAnything()) << pattern;
  }
  EXPECT_FALSE(MayHaveName("b", "c"));
}

TEST(DigestFilter, TellsSlotsApart) {
  const VifIndex component = {eVifLocComponent, 1};
  const VifIndex pdo = {eVifLocSrcPdo, 2};
  for (const QuerySlots& slots : {QuerySlots{component, pdo, kUnused}, QuerySlots{kUnused, component, pdo},
                                  QuerySlots{pdo, kUnused, component}}) {
    EXPECT_TRUE(MayHaveSlot(component, slots));
    EXPECT_TRUE(MayHaveSlot(pdo, slots));
    EXPECT_TRUE(MayHaveSlot({eVifLocSrcPdo, kAny}, slots));
    EXPECT_FALSE(MayHaveSlot({eVifLocComponent, 2}, slots));
    EXPECT_FALSE(MayHaveSlot({eVifLocSrcPdo, 1}, slots));
    EXPECT_FALSE(MayHaveSlot({eVifLocSnkPdo, kAny}, slots));
  }
}

/// A slot of few kinds, some of which digests cannot tell apart.
VifIndex RandomSlot(std::mt19937_64& random) {
  constexpr EVifLocation locations[] = {eVifLocUnset,
                                        eVifLocComponent,
                                        eVifLocSrcPdo,
                                        static_cast<EVifLocation>(eVifLocComponent + 16),
                                        static_cast<EVifLocation>(16),
                                        static_cast<EVifLocation>(-1)};
  constexpr std::uint64_t numbers[] = {0, 1, 2, 0x0FFF, 0x1000, 0x1001, std::uint64_t{1} << 60, kAny - 1, kAny};
  return {locations[RandomBelow(random, std::size(locations))], numbers[RandomBelow(random, std::size(numbers))]};
}

TEST(DigestFilter, PassesEveryFieldThatPasses) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 random = testsupport::SeededGenerator();
  std::size_t passing = 0;
  std::size_t told = 0;
  for (int i = 0; i < 50'000; ++i) {
    const CVIFField field = Field("Name", {RandomSlot(random), RandomSlot(random), RandomSlot(random)});
    const QuerySlots asked = {RandomSlot(random), RandomSlot(random), RandomSlot(random)};
    CDigestFilter filter;
    for (const VifIndex& slot : asked) {
      if (std::get<0>(slot) != eVifLocUnset) filter.AskForSlot(slot);
    }
    const bool mayPass = filter.MayPass(DigestOf(field));
    if (field.Match(nullptr, asked)) {
      ASSERT_TRUE(mayPass);
      ++passing;
    }
    told += mayPass ? 0U : 1U;
  }
  EXPECT_GT(passing, 500U);
  EXPECT_GT(told, 40'000U);
}

/// Fields of which the query below finds every third, in a list that it searches by digests.
std::vector<CVIFField> ManyFields() {
  std::vector<CVIFField> fields;
  for (std::size_t i = 0; i < 2000; ++i) fields.push_back(Field("Name_" + std::to_string(i % 3)));
  return fields;
}

TEST(FieldQuery, FindsFieldsWithAndWithoutDigests) {
  const std::vector<CVIFField> fields = ManyFields();
  for (const std::ptrdiff_t covered : {0, 1, 1000, 1999, 2000}) {
    CFieldDigests digests;
    digests.Cover({fields.begin(), fields.begin() + covered});
    const vif::FoundFields found =
        vif::FindFields({fields, digests}, CFieldQuery("name_1", {kUnused, kUnused, kUnused}));
    EXPECT_EQ(found.count, 667U) << covered;
    EXPECT_EQ(found.first, &fields[1]) << covered;
  }
}

}  // namespace

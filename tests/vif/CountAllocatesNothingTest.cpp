// A program of its own, because it links a global operator new that counts.
#include "VendorInfoFile.h"
#include "support/FailingMemory.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <vector>

namespace {

using Slots = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

constexpr VifIndex kUnused = CVIFField::UNSPECIFIED_INDEX;
constexpr Slots kAnywhere = {kUnused, kUnused, kUnused};
constexpr VifIndex kEverySecond = {eVifLocComponent, 1};

/// 1,000 fields of one name, alternately in components 0 and 1.
CVendorInfoFile ThousandFields() {
  std::vector<CVIFField> fields;
  for (std::size_t i = 0; i < 1000; ++i) {
    fields.emplace_back(true, "Src_PDO_Voltage_Of_A_Supply", "100", VifIndex{eVifLocComponent, i % 2}, kUnused,
                        kUnused);
  }
  return CVendorInfoFile(fields);
}

/// How many allocations the query makes, which must count that many fields.
template <typename Query>
std::size_t AllocationsOf(std::size_t expectedCount, const Query& query) {
  const std::size_t before = testsupport::AllocationCount();
  const std::size_t count = query();
  const std::size_t after = testsupport::AllocationCount();
  EXPECT_EQ(count, expectedCount);
  return after - before;
}

TEST(CountAllocatesNothing, ForAllFields) {
  const CVendorInfoFile vif = ThousandFields();
  EXPECT_EQ(AllocationsOf(1000, [&] { return vif.Count(); }), 0U);
  EXPECT_EQ(AllocationsOf(1000, [&] { return vif.Count(nullptr, kAnywhere); }), 0U);
  EXPECT_EQ(AllocationsOf(1000, [&] { return vif.Count("", kAnywhere); }), 0U);
}

TEST(CountAllocatesNothing, ByLocation) {
  const CVendorInfoFile vif = ThousandFields();
  EXPECT_EQ(AllocationsOf(500, [&] { return vif.Count(nullptr, kEverySecond, kUnused, kUnused); }), 0U);
  EXPECT_EQ(AllocationsOf(500, [&] { return vif.Count("", Slots{kUnused, kEverySecond, kUnused}); }), 0U);
  EXPECT_EQ(AllocationsOf(0, [&] { return vif.Count(nullptr, VifIndex{eVifLocSrcPdo, 1}, kUnused, kUnused); }), 0U);
}

TEST(CountAllocatesNothing, WithAPlainPattern) {
  const CVendorInfoFile vif = ThousandFields();
  EXPECT_EQ(AllocationsOf(1000, [&] { return vif.Count("src_pdo_voltage_of_a_supply", kAnywhere); }), 0U);
  EXPECT_EQ(AllocationsOf(0, [&] { return vif.Count("Src_PDO_Voltage_Of_A_Supplier", kAnywhere); }), 0U);
}

TEST(CountAllocatesNothing, ByLocationWithAPlainPattern) {
  const CVendorInfoFile vif = ThousandFields();
  EXPECT_EQ(
      AllocationsOf(500, [&] { return vif.Count("Src_PDO_Voltage_Of_A_Supply", kEverySecond, kUnused, kUnused); }), 0U);
}

TEST(CountAllocatesNothing, WithAnExpressionThatNoFieldReaches) {
  const CVendorInfoFile vif = ThousandFields();
  EXPECT_EQ(AllocationsOf(0, [&] { return vif.Count(".*", VifIndex{eVifLocSrcPdo, 1}, kUnused, kUnused); }), 0U);
}

// Checks that the counter sees the library's allocations.

TEST(AllocationCounter, SeesTheCopiesOfOtherQueries) {
  const CVendorInfoFile vif = ThousandFields();
  EXPECT_GT(AllocationsOf(500, [&] { return vif.GetComponent(1)->size(); }), 500U);
}

TEST(AllocationCounter, SeesTheCompilationOfAnExpression) {
  const CVendorInfoFile vif = ThousandFields();
  EXPECT_GT(AllocationsOf(1000, [&] { return vif.Count(".*", kAnywhere); }), 0U);
}

}  // namespace

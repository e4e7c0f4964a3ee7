// Positions of fields are those of the copies that queries return.
#include "SampleContents.h"
#include "VIFContent.h"
#include "VIFInvalidFile.h"
#include "VIFPositions.h"
#include "VendorInfoFile.h"
#include "support/FieldText.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <array>
#include <random>
#include <regex>
#include <string>
#include <vector>

namespace {

using Query = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

std::vector<std::string> TextsAt(const CVendorInfoFile& vif, const std::vector<std::size_t>& positions) {
  std::vector<std::string> texts;
  for (const std::size_t position : positions) texts.push_back(testsupport::FieldText(vif.Fields().at(position)));
  return texts;
}

CVendorInfoFile Samples() {
  CVendorInfoFile vif;
  for (const testsupport::SampleContent& content : testsupport::ContentsInSources()) {
    try {
      AppendVifContent(vif, content.bytes, content.name);
    } catch (const CVIFInvalidFile& error) {  // some show what is not valid
      EXPECT_FALSE(error.Problems().empty());
    }
  }
  return vif;
}

VifIndex RandomSlot(std::mt19937_64& generator) {
  if (testsupport::RandomBelow(generator, 2) == 0) return CVIFField::UNSPECIFIED_INDEX;
  const auto location = static_cast<EVifLocation>(testsupport::RandomBelow(generator, eVifLocCableSvidMode + 2));
  const std::uint64_t number = testsupport::RandomBelow(generator, 5);
  return {location, number == 4 ? CVIFField::INDEX_NOT_SPECIFIED : number};
}

TEST(PositionsTest, AreThoseOfTheCopies) {
  SCOPED_TRACE(testsupport::SeedMessage());
  const CVendorInfoFile vif = Samples();
  ASSERT_GT(vif.Count(), 1000U);
  std::mt19937_64 generator = testsupport::SeededGenerator();
  std::size_t found = 0;
  for (int i = 0; i < 2000; ++i) {
    static constexpr const char* patterns[] = {nullptr, "", "Src_PDO_Voltage", ".*PDO.*", "src_pdo_.*", "PID|XID"};
    const char* pattern = patterns[testsupport::RandomBelow(generator, std::size(patterns))];
    Query query = {RandomSlot(generator), RandomSlot(generator), RandomSlot(generator)};
    const std::vector<std::size_t> positions = FindVifFields(vif, pattern, query);
    found += positions.size();
    EXPECT_TRUE(std::is_sorted(positions.begin(), positions.end()));
    ASSERT_EQ(TextsAt(vif, positions), testsupport::FieldTexts(*vif.GetFields(pattern, query)));
    ASSERT_EQ(TextsAt(vif, FindFirstVifFields(vif, pattern, query[0], query[1])),
              testsupport::FieldTexts(*vif.GetFirstFields(pattern, query[0], query[1])));
  }
  EXPECT_GT(found, 1000U);
}

TEST(PositionsTest, OfAnEmptyObjectAreNone) {
  CVendorInfoFile vif({CVIFField()});
  const CVendorInfoFile other = std::move(vif);
  const Query any = {CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX};
  EXPECT_TRUE(FindVifFields(vif, nullptr, any).empty());  // NOLINT(bugprone-use-after-move): it is empty
  EXPECT_TRUE(FindFirstVifFields(vif, nullptr, any[0], any[1]).empty());
  EXPECT_EQ(FindVifFields(other, nullptr, any).size(), 1U);
}

TEST(PositionsTest, RefuseWhatIsNoPattern) {
  const CVendorInfoFile vif({CVIFField()});
  const Query any = {CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX};
  EXPECT_THROW(FindVifFields(vif, "(", any), std::regex_error);
}

}  // namespace

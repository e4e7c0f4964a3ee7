#include <VIFField.h>
#include <analysis/Edition.h>

#include <gtest/gtest.h>

#include <optional>
#include <string>
#include <vector>

namespace vifanalysis {
namespace {

CVIFField TextField(const std::string& name, const std::string& value,
                    const VifIndex& place = CVIFField::UNSPECIFIED_INDEX) {
  return {false, name, value, place, CVIFField::UNSPECIFIED_INDEX, CVIFField::UNSPECIFIED_INDEX};
}

TEST(EditionTest, ReadsTwoNumbersWithAPointBetween) {
  EXPECT_EQ(ParseEdition("3.22"), (Edition{3, 22}));
  EXPECT_EQ(ParseEdition("2.04"), (Edition{2, 4}));
  EXPECT_EQ(ParseEdition("10.0"), (Edition{10, 0}));
}

TEST(EditionTest, ReadsWhatLoadingAnXmlFilePutsBeforeIt) {
  EXPECT_EQ(ParseEdition("Version 3.22"), (Edition{3, 22}));
  EXPECT_EQ(ParseEdition("Version Version 3.22"), std::nullopt);
}

TEST(EditionTest, RefusesAnythingElse) {
  for (const char* text : {"", "3", "3.", ".22", "3.22.1", "3.22 ", " 3.22", "-3.22", "3.-2", "+3.2", "v3.22", "3,22",
                           "4294967296.0", "3.4294967296"}) {
    EXPECT_EQ(ParseEdition(text), std::nullopt) << text;
  }
}

TEST(EditionTest, IsNamedByTheSpecificationOfTheFile) {
  EXPECT_EQ(EditionNamedBy(TextField("VIF_Specification", "3.22", {eVifLocVif, 0})), (Edition{3, 22}));
  EXPECT_EQ(EditionNamedBy(TextField("$VIF_Specification", "3.22")), (Edition{3, 22}));
  EXPECT_EQ(EditionNamedBy(TextField("VIF_Specification", "new")), std::nullopt);
  EXPECT_EQ(EditionNamedBy(TextField("VIF_Specification", "3.22", {eVifLocComponent, 1})), std::nullopt);
  EXPECT_EQ(EditionNamedBy(TextField("TID", "3.22")), std::nullopt);
  EXPECT_EQ(EditionNamedBy(CVIFField()), std::nullopt);
}

TEST(EditionTest, IsThatOfAllFieldsThatNameOne) {
  const CVIFField first = TextField("$VIF_Specification", "3.22");
  const CVIFField none = TextField("$VIF_Specification", "new");
  EXPECT_EQ(EditionNamedBy(std::vector<CVIFField>{}), std::nullopt);
  EXPECT_EQ(EditionNamedBy(std::vector{none, first, TextField("TID", "1"), first}), (Edition{3, 22}));
  EXPECT_EQ(EditionNamedBy(std::vector{first, TextField("$VIF_Specification", "1.40"), first}), std::nullopt);
}

TEST(EditionTest, IsComparedNumberByNumber) {
  EXPECT_LT((Edition{3, 3}), (Edition{3, 22}));
  EXPECT_LT((Edition{2, 99}), (Edition{3, 0}));
  EXPECT_EQ(ParseEdition("3.2"), ParseEdition("3.02"));
}

TEST(EditionTest, IsWrittenWithTwoDigitsAfterThePoint) {
  EXPECT_EQ(EditionText({2, 4}), "2.04");
  EXPECT_EQ(EditionText({3, 36}), "3.36");
}

}  // namespace
}  // namespace vifanalysis

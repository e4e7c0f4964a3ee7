// What numbers amount to, through the C interface.
#include "Handles.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using namespace testsupport;

constexpr const char* kText =
    "Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 180\nSrc_PDO_Max_Current1: 300\n"
    "Src_PDO_Supply_Type2: 3\nSrc_PDO_APDO_Type2: 0\nSrc_PDO_Min_Voltage2: 33\n"
    "Num_Src_PDOs: 2\nCaptive_Cable: YES\n$Vendor_Name: \"A\"\nUnknown_Name: 1\nSrc_PDO_Voltage9: 1\n";

class CMeaningTest : public testing::Test {
 protected:
  /// "9000 mV", or the status.
  std::string Quantity(std::size_t position) const {
    auto quantity = Sized<vif_quantity>();
    const vif_status status = vif_file_quantity(m_file.get(), position, &quantity, nullptr);
    if (status != VIF_OK) return vif_status_text(status);
    return std::to_string(quantity.amount) + " " + quantity.unit;
  }

  std::string Meaning(std::size_t position) const {
    vif_text* meaning = nullptr;
    int32_t uncertain = 2;
    EXPECT_EQ(vif_file_meaning(m_file.get(), position, &meaning, &uncertain, nullptr), VIF_OK);
    EXPECT_LE(uncertain, 1);
    const TextPointer owner(meaning);
    return {vif_text_data(meaning), vif_text_size(meaning)};
  }

  const FilePointer m_file = FileOf(kText);
};

TEST_F(CMeaningTest, NumbersOfPdosAreInTheUnitOfTheirSupply) {
  EXPECT_EQ(Quantity(1), "9000 mV");
  EXPECT_EQ(Quantity(2), "3000 mA");
  EXPECT_EQ(Quantity(5), "3300 mV");
  EXPECT_EQ(Meaning(1), "9 V");
  EXPECT_EQ(Meaning(5), "3.3 V");
}

TEST_F(CMeaningTest, ValuesHaveTheTextsOfTheVocabulary) {
  EXPECT_EQ(Meaning(0), "Fixed");
  EXPECT_EQ(Meaning(7), "YES");
}

TEST_F(CMeaningTest, NotEveryFieldHasAnAmount) {
  for (const std::size_t position : {std::size_t{8}, std::size_t{9}}) {
    EXPECT_EQ(Quantity(position), vif_status_text(VIF_ERROR_NOT_FOUND)) << position;
    EXPECT_EQ(Meaning(position), "");
  }
}

TEST_F(CMeaningTest, ArgumentsMustNotBeNull) {
  auto quantity = Sized<vif_quantity>();
  vif_text* meaning = nullptr;
  EXPECT_EQ(vif_file_quantity(nullptr, 0, &quantity, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_quantity(m_file.get(), 1, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_quantity(m_file.get(), 11, &quantity, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_meaning(nullptr, 0, &meaning, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_meaning(m_file.get(), 1, nullptr, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_meaning(m_file.get(), 11, &meaning, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_meaning(m_file.get(), 1, &meaning, nullptr, nullptr), VIF_OK);
  vif_text_free(meaning);
}

}  // namespace

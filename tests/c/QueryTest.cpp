// Queries through the C interface.
#include "Handles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace testsupport;

constexpr vif_index kComponent1 = {VIF_LOCATION_COMPONENT, 1};
constexpr vif_index kComponent2 = {VIF_LOCATION_COMPONENT, 2};
constexpr vif_index kSrcPdo2 = {VIF_LOCATION_SRC_PDO, 2};
constexpr vif_index kAnySrcPdo = {VIF_LOCATION_SRC_PDO, VIF_ANY_NUMBER};

class CQueryTest : public testing::Test {
 protected:
  CQueryTest() {
    const char* text = "PID: 1\nSrc_PDO_Voltage1: 100\nSrc_PDO_Voltage2: 180\nSrc_PDO_Max_Current2: 300\n";
    EXPECT_EQ(LoadBytes(m_file.get(), text, "a.txt"), VIF_OK);
    EXPECT_EQ(LoadBytes(m_file.get(), text, "b.txt"), VIF_OK);
  }

  using Places = std::vector<vif_index>;

  std::vector<std::size_t> Find(const char* pattern, const Places& places, bool first = false) {
    const auto find = first ? vif_file_find_first : vif_file_find;
    vif_positions* positions = nullptr;
    EXPECT_EQ(find(m_file.get(), pattern, places.data(), places.size(), &positions, m_error.Receive()), VIF_OK);
    const PositionsPointer owner(positions);
    const std::size_t* data = vif_positions_data(positions);
    return {data, data + vif_positions_count(positions)};
  }

  /// The position found, and the status.
  std::pair<vif_status, std::size_t> One(decltype(vif_file_find_unique) find, const char* pattern,
                                         const Places& places) {
    std::size_t position = 4711;
    const vif_status status = find(m_file.get(), pattern, places.data(), places.size(), &position, m_error.Receive());
    return {status, position};
  }

  FilePointer m_file = MakeFile();
  CError m_error;
};

TEST_F(CQueryTest, FindsFieldsByPatternAndPlaces) {
  EXPECT_THAT(Find("src_pdo_.*", {kComponent2, kSrcPdo2}), ElementsAre(6, 7));
  EXPECT_THAT(Find(nullptr, {kComponent1}), ElementsAre(0, 1, 2, 3));
  EXPECT_THAT(Find("", {kSrcPdo2, kComponent1}), ElementsAre(2, 3));
  EXPECT_THAT(Find("Src_PDO_Voltage", {kAnySrcPdo}), ElementsAre(1, 2, 5, 6));
  EXPECT_THAT(Find("PID", {{VIF_LOCATION_UNSET, 0}, kComponent1, {VIF_LOCATION_UNSET, 5}}), ElementsAre(0));
  EXPECT_THAT(Find("XID", {}), IsEmpty());
  EXPECT_THAT(Find(nullptr, {{99, 1}}), IsEmpty());
}

TEST_F(CQueryTest, CountsFields) {
  std::size_t count = 0;
  ASSERT_EQ(vif_file_count(m_file.get(), "Src_.*", &kSrcPdo2, 1, &count, m_error.Receive()), VIF_OK);
  EXPECT_EQ(count, 4U);
  ASSERT_EQ(vif_file_count(m_file.get(), nullptr, nullptr, 0, &count, nullptr), VIF_OK);
  EXPECT_EQ(count, 8U);
  EXPECT_EQ(vif_file_count(m_file.get(), "(", nullptr, 0, &count, nullptr), VIF_ERROR_PATTERN);
  EXPECT_EQ(count, 0U);
}

TEST_F(CQueryTest, FindsTheOnlyField) {
  const auto found = One(vif_file_find_unique, "src_pdo_voltage", {kComponent2, kSrcPdo2});
  EXPECT_EQ(found, std::pair(vif_status{VIF_OK}, std::size_t{6}));
  EXPECT_EQ(One(vif_file_find_single, "src_pdo_voltage", {kComponent2, kSrcPdo2}), found);
}

TEST_F(CQueryTest, NoFieldIsAFailureUnlessItMayBe) {
  EXPECT_EQ(One(vif_file_find_unique, "XID", {}), std::pair(vif_status{VIF_ERROR_NOT_FOUND}, VIF_NO_POSITION));
  EXPECT_EQ(m_error.Message(), "No field in \"a.txt\" matched with \"XID\".");
  EXPECT_EQ(One(vif_file_find_single, "XID", {}), std::pair(vif_status{VIF_OK}, VIF_NO_POSITION));
}

TEST_F(CQueryTest, SeveralFieldsAreAFailure) {
  for (const auto find : {vif_file_find_unique, vif_file_find_single}) {
    EXPECT_EQ(One(find, "PID", {}), std::pair(vif_status{VIF_ERROR_AMBIGUOUS}, VIF_NO_POSITION));
    EXPECT_EQ(m_error.Message(), "2 fields in \"a.txt\" matched with \"PID\".");
  }
}

TEST_F(CQueryTest, FirstFieldsAreThoseOfTheFirstComponentThatHasAny) {
  EXPECT_THAT(Find("Src_PDO_Voltage", {}, true), ElementsAre(1, 2));
  EXPECT_THAT(Find("Src_PDO_Voltage", {kSrcPdo2}, true), ElementsAre(2));
  EXPECT_EQ(One(vif_file_find_first_unique, "PID", {}), std::pair(vif_status{VIF_OK}, std::size_t{0}));
  EXPECT_EQ(One(vif_file_find_first_unique, "XID", {}).first, VIF_ERROR_NOT_FOUND);
  EXPECT_EQ(One(vif_file_find_first_unique, "Src.*", {}).first, VIF_ERROR_AMBIGUOUS);
}

TEST_F(CQueryTest, APatternMustBeARegularExpression) {
  vif_positions* positions = nullptr;
  EXPECT_EQ(vif_file_find(m_file.get(), "(", nullptr, 0, &positions, m_error.Receive()), VIF_ERROR_PATTERN);
  EXPECT_EQ(positions, nullptr);
  EXPECT_NE(m_error.Message(), "");
  EXPECT_EQ(vif_file_find_first(m_file.get(), "[", nullptr, 0, &positions, nullptr), VIF_ERROR_PATTERN);
  for (const auto find : {vif_file_find_unique, vif_file_find_single, vif_file_find_first_unique}) {
    EXPECT_EQ(One(find, "*", {}), std::pair(vif_status{VIF_ERROR_PATTERN}, VIF_NO_POSITION));
  }
}

TEST_F(CQueryTest, ThereAreAtMostThreePlaces) {
  const vif_index places[4] = {kComponent1, kComponent1, kComponent1, kComponent1};
  std::size_t count = 0;
  vif_positions* positions = nullptr;
  EXPECT_EQ(vif_file_count(m_file.get(), nullptr, places, 3, &count, nullptr), VIF_OK);
  EXPECT_EQ(vif_file_count(m_file.get(), nullptr, places, 4, &count, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_find(m_file.get(), nullptr, places, 4, &positions, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_find_first(m_file.get(), nullptr, places, 3, &positions, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(One(vif_file_find_first_unique, nullptr, {kComponent1, kComponent1, kComponent1}).first,
            VIF_ERROR_ARGUMENT);
}

TEST_F(CQueryTest, ArgumentsMustNotBeNull) {
  std::size_t number = 0;
  vif_positions* positions = nullptr;
  EXPECT_EQ(vif_file_count(nullptr, nullptr, nullptr, 0, &number, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_count(m_file.get(), nullptr, nullptr, 0, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_file_count(m_file.get(), nullptr, nullptr, 1, &number, nullptr), VIF_ERROR_ARGUMENT);
  for (const auto find : {vif_file_find, vif_file_find_first}) {
    EXPECT_EQ(find(nullptr, nullptr, nullptr, 0, &positions, nullptr), VIF_ERROR_ARGUMENT);
    EXPECT_EQ(find(m_file.get(), nullptr, nullptr, 0, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  }
  for (const auto find : {vif_file_find_unique, vif_file_find_single, vif_file_find_first_unique}) {
    EXPECT_EQ(find(nullptr, nullptr, nullptr, 0, &number, nullptr), VIF_ERROR_ARGUMENT);
    EXPECT_EQ(find(m_file.get(), nullptr, nullptr, 0, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  }
  EXPECT_EQ(vif_positions_count(nullptr), 0U);
  EXPECT_EQ(vif_positions_data(nullptr), nullptr);
  vif_positions_free(nullptr);
}

}  // namespace

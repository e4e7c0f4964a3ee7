// Queries that find a match.
#include "QueryCheck.h"

namespace {

using testsupport::ExpectAllFormsBearFailures;
using testsupport::ExpectFirstFormsBearFailures;
using testsupport::ExpectQuerySurvivesFailures;
using testsupport::kAnywhere;
using testsupport::kUnused;
using testsupport::Slots;

constexpr VifIndex kComponent1 = {eVifLocComponent, 1};
constexpr VifIndex kComponent2 = {eVifLocComponent, 2};
constexpr VifIndex kPdo1 = {eVifLocSrcPdo, 1};
constexpr VifIndex kPdo3 = {eVifLocSrcPdo, 3};
constexpr Slots kInComponent1 = {kComponent1, kUnused, kUnused};

constexpr const char* kPlain = "src_pdo_voltage_with_a_long_name";
constexpr const char* kExpression = "(src|snk)_pdo_vol[a-z]+_with_.*_name";

constexpr const char* kSupplyText = "[Src_PDO_Supply_Type_With_A_Long_Name=100 ; 5000 mV and more, a long description ";
constexpr const char* kVoltageText = "Src_PDO_Voltage_With_A_Long_Name=100 ; 5000 mV and more, a long description ";

class QueryMemoryTest : public testing::Test {
 protected:
  QueryMemoryTest() {
    // Three components are known, so that GetFirstFields searches the first two.
    const testsupport::TempDir dir;
    for (int i = 0; i < 3; ++i) testsupport::AppendFile(m_vif, dir.Write("empty.txt", ""));
    m_vif.Append(testsupport::SampleFields());
  }

  CVendorInfoFile m_vif;
};

std::string Voltages(const std::string& component) {
  std::string text;
  for (const char* pdo : {"2", "3", "4", "5"}) {
    text.append("[").append(kVoltageText).append("@6.").append(component).append(" @7.").append(pdo).append("]");
  }
  return text;
}

TEST_F(QueryMemoryTest, CountByPlainName) {
  ExpectAllFormsBearFailures(m_vif, "8", kPlain, kAnywhere, testsupport::Count(m_vif));
}

TEST_F(QueryMemoryTest, CountByExpression) {
  ExpectAllFormsBearFailures(m_vif, "4", kExpression, kInComponent1, testsupport::Count(m_vif));
}

TEST_F(QueryMemoryTest, CountOfAllAndByLocation) {
  ExpectQuerySurvivesFailures(m_vif, "12", [&] { return m_vif.Count(); });
  ExpectQuerySurvivesFailures(m_vif, "12", [&] { return m_vif.Count(nullptr, kAnywhere); });
  ExpectQuerySurvivesFailures(m_vif, "6", [&] { return m_vif.Count(nullptr, kComponent2, kUnused, kUnused); });
}

TEST_F(QueryMemoryTest, GetFieldsOfAll) {
  const std::string all = testsupport::OutcomeOf([&] { return m_vif.GetFields(); });
  ExpectQuerySurvivesFailures(m_vif, all, [&] { return m_vif.GetFields(); });
  ExpectQuerySurvivesFailures(m_vif, all, [&] { return m_vif.GetFields(nullptr, kAnywhere); });
  ExpectQuerySurvivesFailures(m_vif, all, [&] { return m_vif.GetFields(nullptr, kUnused, kUnused, kUnused); });
}

TEST_F(QueryMemoryTest, GetFieldsByPlainName) {
  ExpectAllFormsBearFailures(m_vif, Voltages("1") + Voltages("2"), kPlain, kAnywhere, testsupport::GetFields(m_vif));
}

TEST_F(QueryMemoryTest, GetFieldsByExpression) {
  ExpectAllFormsBearFailures(m_vif, Voltages("1"), kExpression, kInComponent1, testsupport::GetFields(m_vif));
}

TEST_F(QueryMemoryTest, GetUniqueFieldByPlainName) {
  ExpectAllFormsBearFailures(m_vif, std::string(kVoltageText).append("@6.2 @7.3"), kPlain,
                             {kComponent2, kPdo3, kUnused}, testsupport::GetUniqueField(m_vif));
}

TEST_F(QueryMemoryTest, GetUniqueFieldByExpression) {
  ExpectAllFormsBearFailures(m_vif, std::string(kVoltageText).append("@6.2 @7.3"), kExpression,
                             {kComponent2, kPdo3, kUnused}, testsupport::GetUniqueField(m_vif));
}

TEST_F(QueryMemoryTest, GetUniqueFieldByLocation) {
  const std::string expected = std::string(kVoltageText).append("@6.1 @7.3");
  ExpectQuerySurvivesFailures(m_vif, expected,
                              [&] { return m_vif.GetUniqueField(nullptr, kComponent1, kPdo3, kUnused); });
  ExpectQuerySurvivesFailures(m_vif, expected, [&] {
    return m_vif.GetUniqueField(nullptr, Slots{kComponent1, kPdo3, kUnused});
  });
}

TEST_F(QueryMemoryTest, GetSingleFieldByPlainName) {
  ExpectAllFormsBearFailures(m_vif, std::string("true ").append(kVoltageText).append("@6.2 @7.3"), kPlain,
                             {kComponent2, kPdo3, kUnused}, testsupport::GetSingleField(m_vif));
}

TEST_F(QueryMemoryTest, GetSingleFieldByExpression) {
  ExpectAllFormsBearFailures(m_vif, std::string("true ").append(kVoltageText).append("@6.2 @7.3"), kExpression,
                             {kComponent2, kPdo3, kUnused}, testsupport::GetSingleField(m_vif));
}

TEST_F(QueryMemoryTest, GetSingleFieldByLocation) {
  const std::string expected = std::string("true ").append(kVoltageText).append("@6.1 @7.3");
  ExpectQuerySurvivesFailures(m_vif, expected,
                              [&] { return m_vif.GetSingleField(nullptr, kComponent1, kPdo3, kUnused); });
  ExpectQuerySurvivesFailures(m_vif, expected, [&] {
    return m_vif.GetSingleField(nullptr, Slots{kComponent1, kPdo3, kUnused});
  });
}

TEST_F(QueryMemoryTest, GetSingleFieldThatIsMissing) {
  ExpectAllFormsBearFailures(m_vif, "false =", "Name_Of_Nothing_That_Is_There_At_All.*", kAnywhere,
                             testsupport::GetSingleField(m_vif));
}

TEST_F(QueryMemoryTest, GetFirstFieldsByPlainName) {
  ExpectFirstFormsBearFailures(m_vif, Voltages("1"), kPlain, kUnused, kUnused, testsupport::GetFirstFields(m_vif));
}

TEST_F(QueryMemoryTest, GetFirstFieldsByExpression) {
  ExpectFirstFormsBearFailures(m_vif, Voltages("1"), kExpression, kUnused, kUnused, testsupport::GetFirstFields(m_vif));
}

TEST_F(QueryMemoryTest, GetFirstFieldsByLocation) {
  ExpectQuerySurvivesFailures(m_vif, std::string(kSupplyText).append("@6.1 @7.1]"),
                              [&] { return m_vif.GetFirstFields(nullptr, kPdo1, kUnused); });
}

TEST_F(QueryMemoryTest, GetFirstUniqueFieldByPlainName) {
  ExpectFirstFormsBearFailures(m_vif, std::string(kVoltageText).append("@6.1 @7.3"), kPlain, kPdo3, kUnused,
                               testsupport::GetFirstUniqueField(m_vif));
}

TEST_F(QueryMemoryTest, GetFirstUniqueFieldByExpression) {
  ExpectFirstFormsBearFailures(m_vif, std::string(kVoltageText).append("@6.1 @7.3"), kExpression, kPdo3, kUnused,
                               testsupport::GetFirstUniqueField(m_vif));
}

TEST_F(QueryMemoryTest, GetFirstUniqueFieldByLocation) {
  ExpectQuerySurvivesFailures(m_vif, std::string(kVoltageText).append("@6.1 @7.3"),
                              [&] { return m_vif.GetFirstUniqueField(nullptr, kPdo3, kUnused); });
}

TEST(FieldMatchMemory, MatchAnExpression) {
  const CVIFField field(false, testsupport::kLongName, testsupport::kLongValue, kComponent1, kUnused, kUnused);
  testsupport::ForEveryFailingAllocation(
      [&] { return field.Match("vendor_(name|id).*_of_its_own", kComponent1, kUnused, kUnused); },
      [](const std::optional<bool>& matches) {
        if (matches) {
          EXPECT_TRUE(*matches);
        }
      });
}

}  // namespace

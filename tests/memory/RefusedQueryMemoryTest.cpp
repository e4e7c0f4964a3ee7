// Queries that throw an exception, whose message needs memory.
#include "QueryCheck.h"

namespace {

using testsupport::ExpectAllFormsBearFailures;
using testsupport::ExpectFirstFormsBearFailures;
using testsupport::kAnywhere;
using testsupport::kUnused;

constexpr const char* kNothing = "Name_Of_Nothing_That_Is_There_At_All";
constexpr const char* kSeveral = "Src_PDO_Voltage_.*";

/// The components of empty files, whose name the messages need, and sample fields.
class RefusedQueryMemoryTest : public testing::Test {
 protected:
  RefusedQueryMemoryTest() {
    const std::filesystem::path file = m_dir.Write("a file with a long name.txt", "");
    for (int i = 0; i < 3; ++i) testsupport::AppendFile(m_vif, file);
    m_vif.Append(testsupport::SampleFields());
    m_fileName = Utf16ToUtf8(m_vif.FileName());
  }

  std::string Message(const std::string& text) const {
    std::string message = "CZoRunTimeException: ";
    return message.append(text);
  }

  std::string TooMany(const std::string& where, const std::string& pattern) const {
    return Message("8 fields in \"" + where + "\" matched with \"" + pattern + "\".");
  }

  std::string None(const std::string& pattern) const {
    return Message("Couldn't find field in \"" + m_fileName + "\" that matched with \"" + pattern + "\".");
  }

  testsupport::TempDir m_dir;
  CVendorInfoFile m_vif;
  std::string m_fileName;
};

TEST_F(RefusedQueryMemoryTest, GetUniqueFieldThatFindsNothing) {
  ExpectAllFormsBearFailures(m_vif, None(kNothing), kNothing, kAnywhere, testsupport::GetUniqueField(m_vif));
}

TEST_F(RefusedQueryMemoryTest, GetUniqueFieldThatFindsSeveral) {
  ExpectAllFormsBearFailures(m_vif, TooMany(m_fileName, kSeveral), kSeveral, kAnywhere,
                             testsupport::GetUniqueField(m_vif));
}

TEST_F(RefusedQueryMemoryTest, GetUniqueFieldOfAnObjectWithoutAFile) {
  const CVendorInfoFile vif(testsupport::SampleFields());
  ExpectAllFormsBearFailures(vif, TooMany("this VIF", kSeveral), kSeveral, kAnywhere, testsupport::GetUniqueField(vif));
}

TEST_F(RefusedQueryMemoryTest, GetSingleFieldThatFindsSeveral) {
  ExpectAllFormsBearFailures(m_vif, TooMany(m_fileName, kSeveral), kSeveral, kAnywhere,
                             testsupport::GetSingleField(m_vif));
}

TEST_F(RefusedQueryMemoryTest, GetFirstUniqueFieldThatFindsSeveral) {
  const std::string expected =
      Message(std::string("4 fields in \"").append(kSeveral).append("\" matched with \"").append(kSeveral) + "\".");
  ExpectFirstFormsBearFailures(m_vif, expected, kSeveral, kUnused, kUnused, testsupport::GetFirstUniqueField(m_vif));
}

TEST_F(RefusedQueryMemoryTest, GetFirstUniqueFieldThatFindsNothing) {
  ExpectFirstFormsBearFailures(m_vif, "std::out_of_range: invalid vector subscript", kNothing, kUnused, kUnused,
                               testsupport::GetFirstUniqueField(m_vif));
}

TEST_F(RefusedQueryMemoryTest, PatternThatIsNotAnExpression) {
  const std::string expected = testsupport::OutcomeOf([&] { return m_vif.Count("(Src_PDO_Voltage", kAnywhere); });
  EXPECT_TRUE(expected.starts_with("std::regex_error: ")) << expected;
  ExpectAllFormsBearFailures(m_vif, expected, "(Src_PDO_Voltage", kAnywhere, testsupport::Count(m_vif));
  ExpectAllFormsBearFailures(m_vif, expected, "(Src_PDO_Voltage", kAnywhere, testsupport::GetFields(m_vif));
}

// Too long for the recursive engine, so that the stepwise one starts over.
TEST_F(RefusedQueryMemoryTest, PatternThatIsMatchedStepByStep) {
  CVendorInfoFile vif;
  vif.Append({CVIFField(true, std::string(20'000, 'a'), "1", kAnywhere)});
  const auto count = [&] { return vif.Count("(a)*", kAnywhere); };
  EXPECT_EQ(testsupport::OutcomeOf(count), "1");
  constexpr std::size_t everyUpTo = 20;
  testsupport::ForEveryFailingAllocation([] { return std::size_t{0}; }, [&](std::size_t& found) { found = count(); },
                                         [](std::size_t found, bool isDone) { EXPECT_EQ(found, isDone ? 1U : 0U); },
                                         everyUpTo);
}

}  // namespace

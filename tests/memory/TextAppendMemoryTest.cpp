// Appending text files and lists of fields.
#include "Samples.h"
#include "VendorInfoFile.h"
#include "support/AppendFile.h"
#include "support/FieldText.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace {

using testsupport::AppendFile;
using testsupport::FieldTexts;
using testsupport::ForEveryFailingAllocation;
using testsupport::SampleFields;

class AppendMemoryTest : public testing::Test {
 protected:
  AppendMemoryTest() {
    CVendorInfoFile whole = Begun();
    m_before = FieldTexts(*whole.GetFields());
    AppendFile(whole, m_path);
    m_whole = FieldTexts(*whole.GetFields());
  }

  static CVendorInfoFile Begun() { return CVendorInfoFile(SampleFields()); }

  /// Expects that the object holds what it held before and whatever was read of the appended file, and accepts the file
  /// again.
  void ExpectUsable(CVendorInfoFile& vif) const {
    const std::vector<std::string> held = FieldTexts(*vif.GetFields());
    ASSERT_GE(held.size(), m_before.size());
    ASSERT_LE(held.size(), m_whole.size());
    EXPECT_TRUE(std::equal(held.begin(), held.end(), m_whole.begin()));
    AppendFile(vif, m_path);
    EXPECT_EQ(vif.Count(), held.size() + testsupport::kTextFieldCount);
  }

  testsupport::TempDir m_dir;
  std::filesystem::path m_path = m_dir.Write("a file with a long name.txt", testsupport::TextVif());
  std::vector<std::string> m_before;
  std::vector<std::string> m_whole;
};

TEST_F(AppendMemoryTest, AppendOfATextFileLosesNothing) {
  ForEveryFailingAllocation(
      Begun, [&](CVendorInfoFile& vif) { AppendFile(vif, m_path); },
      [&](CVendorInfoFile& vif, bool isDone) {
        if (isDone) {
          EXPECT_EQ(FieldTexts(*vif.GetFields()), m_whole);
        }
        ExpectUsable(vif);
      });
}

TEST_F(AppendMemoryTest, AppendOfNoFileAllocatesNothing) {
  ForEveryFailingAllocation(
      Begun,
      [](CVendorInfoFile& vif) {
        vif.Append(static_cast<const char*>(nullptr));
        vif.Append("");
      },
      [&](CVendorInfoFile& vif, bool isDone) {
        EXPECT_TRUE(isDone);
        EXPECT_EQ(FieldTexts(*vif.GetFields()), m_before);
        ExpectUsable(vif);
      });
}

TEST_F(AppendMemoryTest, AppendOfAFieldListLeavesTheObjectEmptyWhenItFails) {
  const std::vector<CVIFField> added = SampleFields();
  ForEveryFailingAllocation([&] { return CVendorInfoFile(m_path); }, [&](CVendorInfoFile& vif) { vif.Append(added); },
                            [&](CVendorInfoFile& vif, bool isDone) {
                              const std::size_t before = testsupport::kTextFieldCount;
                              EXPECT_EQ(vif.Count(), isDone ? before + added.size() : 0);
                              EXPECT_EQ(*vif.FileName() != L'\0', isDone);
                              vif.Append(added);
                              EXPECT_EQ(vif.Count(), isDone ? before + 2 * added.size() : added.size());
                            });
}

}  // namespace

// Copying and moving whole objects.
#include "Samples.h"
#include "VendorInfoFile.h"
#include "support/AppendFile.h"
#include "support/FieldText.h"
#include "support/ForEveryFailingAllocation.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace {

using testsupport::FieldTexts;
using testsupport::ForEveryFailingAllocation;

/// The observable state of an object.
struct Contents {
  explicit Contents(const CVendorInfoFile& vif)
      : fields(FieldTexts(*vif.GetFields())), fileName(vif.FileName()), components(vif.ComponentCount()) {}
  bool operator==(const Contents&) const = default;

  std::vector<std::string> fields;
  std::wstring fileName;
  std::uint32_t components;
};

using Pair = std::array<CVendorInfoFile, 2>;

class CopyMemoryTest : public testing::Test {
 protected:
  CVendorInfoFile Loaded() const { return CVendorInfoFile(m_path); }

  static CVendorInfoFile Other() { return CVendorInfoFile(testsupport::SampleFields()); }

  testsupport::TempDir m_dir;
  std::filesystem::path m_path = m_dir.Write("a file with a long name.txt", testsupport::TextVif());
  Contents m_loaded = Contents(Loaded());
  Contents m_other = Contents(Other());
};

TEST_F(CopyMemoryTest, CopyConstruct) {
  const CVendorInfoFile source = Loaded();
  ForEveryFailingAllocation([&] { return CVendorInfoFile(source); },
                            [&](const std::optional<CVendorInfoFile>& copy) {
                              if (copy) {
                                EXPECT_EQ(Contents(*copy), m_loaded);
                              }
                              EXPECT_EQ(Contents(source), m_loaded);
                            });
}

TEST_F(CopyMemoryTest, CopyConstructFromAMovedFromObject) {
  CVendorInfoFile source = Loaded();
  const CVendorInfoFile taken = std::move(source);
  ForEveryFailingAllocation([&] { return CVendorInfoFile(source); },  // NOLINT(bugprone-use-after-move): it is empty
                            [](const std::optional<CVendorInfoFile>& copy) {
                              if (copy) {
                                EXPECT_EQ(copy->Count(), 0U);
                              }
                            });
}

TEST_F(CopyMemoryTest, CopyAssign) {
  const CVendorInfoFile source = Loaded();
  ForEveryFailingAllocation(
      Other, [&](CVendorInfoFile& vif) { vif = source; },
      [&](CVendorInfoFile& vif, bool isDone) {
        EXPECT_EQ(Contents(vif), isDone ? m_loaded : m_other);
        vif = source;
        EXPECT_EQ(Contents(vif), m_loaded);
      });
}

TEST_F(CopyMemoryTest, MoveConstructAllocatesNothing) {
  CVendorInfoFile source = Loaded();
  ForEveryFailingAllocation([&] { return CVendorInfoFile(std::move(source)); },
                            [&](std::optional<CVendorInfoFile> moved) {
                              ASSERT_TRUE(moved);
                              EXPECT_EQ(Contents(*moved), m_loaded);
                              source = std::move(*moved);
                            });
}

TEST_F(CopyMemoryTest, MoveAssignAllocatesNothing) {
  ForEveryFailingAllocation(
      [&] {
        return Pair{Loaded(), Other()};
      },
      [](Pair& pair) { pair[0] = std::move(pair[1]); },
      [&](const Pair& pair, bool isDone) {
        EXPECT_TRUE(isDone);
        EXPECT_EQ(Contents(pair[0]), m_other);
        EXPECT_EQ(Contents(pair[1]), m_loaded);
      });
}

TEST_F(CopyMemoryTest, MovedFromObjectIsUsedAgain) {
  const auto begin = [&] {
    CVendorInfoFile vif = Loaded();
    const CVendorInfoFile taken = std::move(vif);
    return vif;  // NOLINT(bugprone-use-after-move): it is empty
  };
  ForEveryFailingAllocation(
      begin, [&](CVendorInfoFile& vif) { testsupport::AppendFile(vif, m_path); },
      [&](CVendorInfoFile& vif, bool isDone) {
        if (isDone) {
          EXPECT_EQ(Contents(vif), m_loaded);
        }
        vif = Loaded();
        EXPECT_EQ(Contents(vif), m_loaded);
      });
}

}  // namespace

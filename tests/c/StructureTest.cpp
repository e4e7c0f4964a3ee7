// Structures of callers that know fewer or more members than the library.
#include "Handles.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

namespace {

using namespace testsupport;

TEST(CStructureTest, OneThatIsTooSmallIsRefused) {
  const FilePointer file = FileOf("PID: 1\n");
  vif_field field = {};
  EXPECT_EQ(vif_file_field(file.get(), 0, &field), VIF_ERROR_ARGUMENT);
  field.size = sizeof(field) - 1;
  EXPECT_EQ(vif_file_field(file.get(), 0, &field), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(field.name, nullptr);
  vif_check_options options = {};
  vif_findings* findings = nullptr;
  EXPECT_EQ(vif_check_bytes("", 0, "a.txt", &options, nullptr, &findings, nullptr), VIF_ERROR_ARGUMENT);
}

/// A field as a later version might have it.
struct LaterField {
  vif_field field;
  std::uint64_t later;
};

/// Options as a later version might have them.
struct LaterOptions {
  vif_check_options options;
  std::uint64_t later;
};

TEST(CStructureTest, MembersThatTheLibraryDoesNotKnowBecomeZero) {
  const FilePointer file = FileOf("PID: 1\n");
  LaterField field;
  std::memset(&field, 0xFF, sizeof(field));
  field.field.size = sizeof(field);
  ASSERT_EQ(vif_file_field(file.get(), 0, &field.field), VIF_OK);
  EXPECT_EQ(field.field.size, sizeof(field));
  EXPECT_STREQ(field.field.name, "PID");
  EXPECT_EQ(field.later, 0U);
}

/// The status of checking with options of that size.
vif_status CheckWithSize(std::size_t size) {
  LaterOptions options = {};
  options.options.size = size;
  vif_findings* findings = nullptr;
  const vif_status status = vif_check_bytes("PID: 1\n", 7, "a.txt", &options.options, nullptr, &findings, nullptr);
  vif_findings_free(findings);
  return status;
}

TEST(CStructureTest, OptionsOfEverySmallerSizeAreRefused) {
  for (std::size_t size = 0; size < sizeof(vif_check_options); ++size) {
    EXPECT_EQ(CheckWithSize(size), VIF_ERROR_ARGUMENT) << size;
  }
}

TEST(CStructureTest, OptionsThatTheLibraryDoesNotKnowAreNotRead) {
  EXPECT_EQ(CheckWithSize(sizeof(vif_check_options)), VIF_OK);
  EXPECT_EQ(CheckWithSize(sizeof(LaterOptions)), VIF_OK);
}

int32_t NeverCalled(void*, uint64_t, uint64_t) {
  ADD_FAILURE() << "half a pointer was called";
  return 0;
}

TEST(CStructureTest, HalfAPointerIsNeverUsed) {
  for (std::size_t size = 0; size < sizeof(vif_progress); ++size) {
    const vif_progress progress = {size, NeverCalled, nullptr};
    vif_findings* findings = nullptr;
    EXPECT_EQ(vif_check_bytes("", 0, "a.txt", nullptr, &progress, &findings, nullptr), VIF_ERROR_ARGUMENT) << size;
  }
  const FilePointer file = FileOf("PID: 1\n");
  for (std::size_t size = 0; size < sizeof(vif_reported_file); ++size) {
    const vif_reported_file reported = {size, file.get(), nullptr, nullptr};
    vif_text* page = nullptr;
    EXPECT_EQ(vif_report(&reported, nullptr, nullptr, &page, nullptr), VIF_ERROR_ARGUMENT) << size;
  }
}

}  // namespace

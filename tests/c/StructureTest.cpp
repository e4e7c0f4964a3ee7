// Structures of callers that know fewer or more members than the library.
#include "Handles.h"

#include <gtest/gtest.h>

#include <cstddef>
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

TEST(CStructureTest, OptionsThatTheCallerDoesNotKnowAreNotRead) {
  vif_check_options options;
  std::memset(&options, 0xFF, sizeof(options));
  options.size = offsetof(vif_check_options, only);
  options.notes = 0;
  vif_findings* findings = nullptr;
  ASSERT_EQ(vif_check_bytes("PID: 1\n", 7, "a.txt", &options, nullptr, &findings, nullptr), VIF_OK);
  vif_findings_free(findings);
}

}  // namespace

// Handles that were freed or are of another kind, with a library that checks them.
#include "Handles.h"

#include <gtest/gtest.h>

namespace {

using namespace testsupport;

/// A handle that was alive.
vif_file* Freed() {
  vif_file* file = nullptr;
  EXPECT_EQ(vif_file_make(&file, nullptr), VIF_OK);
  vif_file_free(file);
  return file;
}

TEST(CHandleTest, OneThatWasFreedIsRefused) {
  vif_file* file = Freed();
  testing::internal::CaptureStderr();
  auto field = Sized<vif_field>();
  std::size_t count = 0;
  CError error;
  EXPECT_EQ(vif_file_load(file, "a.txt", nullptr, error.Receive()), VIF_ERROR_HANDLE);
  EXPECT_EQ(error.Message(), vif_status_text(VIF_ERROR_HANDLE));
  EXPECT_EQ(vif_file_field(file, 0, &field), VIF_ERROR_HANDLE);
  EXPECT_EQ(vif_file_count(file, nullptr, nullptr, 0, &count, nullptr), VIF_ERROR_HANDLE);
  EXPECT_EQ(vif_file_field_count(file), 0U);
  EXPECT_STREQ(vif_file_name(file), "");
  vif_file_free(file);
  EXPECT_EQ(testing::internal::GetCapturedStderr().substr(0, 50),
            "vif: a handle has been freed, or never was one\nvif");
}

TEST(CHandleTest, OneOfAnotherKindIsRefused) {
  const FilePointer file = FileOf("PID: 1\n");
  auto* findings = reinterpret_cast<vif_findings*>(file.get());
  testing::internal::CaptureStderr();
  auto finding = Sized<vif_finding>();
  EXPECT_EQ(vif_findings_get(findings, 0, &finding), VIF_ERROR_HANDLE);
  EXPECT_EQ(vif_findings_count(findings), 0U);
  vif_findings_free(findings);
  EXPECT_EQ(testing::internal::GetCapturedStderr().substr(0, 35), "vif: a handle is of another kind\nvi");
  EXPECT_EQ(vif_file_field_count(file.get()), 1U);
}

TEST(CHandleTest, EveryOtherKindIsChecked) {
  auto* freed = Freed();
  testing::internal::CaptureStderr();
  auto difference = Sized<vif_difference>();
  EXPECT_EQ(vif_differences_get(reinterpret_cast<vif_differences*>(freed), 0, &difference), VIF_ERROR_HANDLE);
  auto comparison = Sized<vif_port_comparison>();
  EXPECT_EQ(vif_ports_get(reinterpret_cast<vif_ports*>(freed), 0, &comparison), VIF_ERROR_HANDLE);
  auto field = Sized<vif_explained_field>();
  EXPECT_EQ(vif_explanation_get(reinterpret_cast<vif_explanation*>(freed), &field), VIF_ERROR_HANDLE);
  EXPECT_EQ(vif_text_size(reinterpret_cast<vif_text*>(freed)), 0U);
  vif_text_free(reinterpret_cast<vif_text*>(freed));
  EXPECT_EQ(vif_positions_count(reinterpret_cast<vif_positions*>(freed)), 0U);
  vif_differences* differences = nullptr;
  EXPECT_EQ(vif_compare(freed, freed, nullptr, nullptr, &differences, nullptr), VIF_ERROR_HANDLE);
  vif_text* text = nullptr;
  EXPECT_EQ(vif_file_json(freed, nullptr, 0, &text, nullptr), VIF_ERROR_HANDLE);
  EXPECT_EQ(vif_file_csv(freed, &text, nullptr), VIF_ERROR_HANDLE);
  auto* findings = reinterpret_cast<vif_findings*>(freed);
  EXPECT_EQ(vif_findings_json(findings, "a", &text, nullptr), VIF_ERROR_HANDLE);
  EXPECT_EQ(vif_differences_json(reinterpret_cast<vif_differences*>(freed), "a", "b", nullptr, nullptr, &text, nullptr),
            VIF_ERROR_HANDLE);
  const FilePointer one = FileOf("PID: 1\n");
  ASSERT_EQ(vif_compare(one.get(), one.get(), nullptr, nullptr, &differences, nullptr), VIF_OK);
  EXPECT_EQ(vif_differences_json(differences, "a", "b", findings, nullptr, &text, nullptr), VIF_ERROR_HANDLE);
  EXPECT_EQ(vif_differences_json(differences, "a", "b", nullptr, findings, &text, nullptr), VIF_ERROR_HANDLE);
  vif_differences_free(differences);
  EXPECT_EQ(text, nullptr);
  vif_differences_free(reinterpret_cast<vif_differences*>(freed));
  vif_ports_free(reinterpret_cast<vif_ports*>(freed));
  vif_explanation_free(reinterpret_cast<vif_explanation*>(freed));
  vif_positions_free(reinterpret_cast<vif_positions*>(freed));
  testing::internal::GetCapturedStderr();
}

TEST(CHandleTest, LiveOnesWork) {
  const FilePointer file = FileOf("PID: 1\n");
  std::size_t position = 1;
  EXPECT_EQ(vif_file_find_unique(file.get(), "PID", nullptr, 0, &position, nullptr), VIF_OK);
  EXPECT_EQ(position, 0U);
  EXPECT_GE(vif_findings_count(Check("no\n", "a.txt").get()), 1U);
}

}  // namespace

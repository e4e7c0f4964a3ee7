// Comparisons through the C interface.
#include "Handles.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using namespace testsupport;

constexpr const char* kBefore =
    "PID: 1\nXID: 5\n"
    "Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 100\nSrc_PDO_Max_Current1: 300\n";
constexpr const char* kAfter =
    "PID: 2\nUSB_VID: 7\n"
    "Src_PDO_Supply_Type1: 0\nSrc_PDO_Voltage1: 100\nSrc_PDO_Max_Current1: 300\n"
    "Src_PDO_Supply_Type2: 0\nSrc_PDO_Voltage2: 180\nSrc_PDO_Max_Current2: 300\n";

DifferencesPointer Compare(const vif_file* before, const vif_file* after,
                           const vif_compare_options* options = nullptr) {
  vif_differences* differences = nullptr;
  EXPECT_EQ(vif_compare(before, after, options, nullptr, &differences, nullptr), VIF_OK);
  return DifferencesPointer(differences);
}

DifferencesPointer Compare(const char* before, const char* after, const vif_compare_options* options = nullptr) {
  return Compare(FileOf(before).get(), FileOf(after).get(), options);
}

vif_difference DifferenceOf(const vif_differences* differences, const std::string& name) {
  auto difference = Sized<vif_difference>();
  for (std::size_t i = 0; i < vif_differences_count(differences); ++i) {
    EXPECT_EQ(vif_differences_get(differences, i, &difference), VIF_OK);
    if (difference.name == name) return difference;
  }
  ADD_FAILURE() << "no difference in " << name;
  return {};
}

TEST(CDifferencesTest, TellsWhatChanged) {
  const DifferencesPointer differences = Compare(kBefore, kAfter);
  const vif_difference changed = DifferenceOf(differences.get(), "PID");
  EXPECT_EQ(changed.kind, VIF_CHANGED);
  EXPECT_EQ(changed.group, VIF_NO_POSITION);
  ASSERT_EQ(changed.place_count, 1U);
  EXPECT_EQ(changed.place[0].location, VIF_LOCATION_COMPONENT);
  EXPECT_STREQ(changed.before.value, "1");
  EXPECT_EQ(changed.before.number, 1U);
  EXPECT_EQ(changed.before.position, 0U);
  EXPECT_EQ(changed.after.number, 2U);
  EXPECT_EQ(changed.after.index_count, 1U);
}

TEST(CDifferencesTest, TellsWhatIsInOneFileOnly) {
  const DifferencesPointer differences = Compare(kBefore, kAfter);
  const vif_difference removed = DifferenceOf(differences.get(), "XID");
  EXPECT_EQ(removed.kind, VIF_REMOVED);
  EXPECT_EQ(removed.before.position, 1U);
  EXPECT_EQ(removed.after.position, VIF_NO_POSITION);
  EXPECT_EQ(removed.after.number, VIF_NO_NUMBER);
  EXPECT_STREQ(removed.after.name, "");
  EXPECT_EQ(removed.after.indexes[0].location, VIF_LOCATION_UNSET);
  EXPECT_EQ(removed.after.indexes[0].number, VIF_ANY_NUMBER);
  EXPECT_EQ(DifferenceOf(differences.get(), "USB_VID").kind, VIF_ADDED);
}

TEST(CDifferencesTest, TellsWhichGroupsAreNew) {
  const DifferencesPointer differences = Compare(kBefore, kAfter);
  ASSERT_EQ(vif_differences_group_count(differences.get()), 1U);
  auto change = Sized<vif_group_change>();
  ASSERT_EQ(vif_differences_group(differences.get(), 0, &change), VIF_OK);
  EXPECT_EQ(change.kind, VIF_ADDED);
  EXPECT_EQ(change.field_count, 3U);
  ASSERT_EQ(change.after_count, 2U);
  EXPECT_EQ(change.after[1].location, VIF_LOCATION_SRC_PDO);
  EXPECT_EQ(change.after[1].number, 2U);
  EXPECT_THAT(change.summary, testing::HasSubstr("9 V"));
  const vif_difference voltage = DifferenceOf(differences.get(), "Src_PDO_Voltage");
  EXPECT_EQ(voltage.group, 0U);
  EXPECT_STREQ(voltage.after.meaning, "9 V");
}

TEST(CDifferencesTest, DescriptionsCountOnRequest) {
  auto options = Sized<vif_compare_options>();
  EXPECT_EQ(vif_differences_count(Compare("PID: 1 ; a\n", "PID: 1 ; b\n", &options).get()), 0U);
  options.descriptions = 1;
  EXPECT_EQ(vif_differences_count(Compare("PID: 1 ; a\n", "PID: 1 ; b\n", &options).get()), 1U);
}

TEST(CDifferencesTest, TextsAreUtf8) {
  const DifferencesPointer differences = Compare("$Vendor_Name: \"\xFF\"\n", "$Vendor_Name: \"\xFE\"\n");
  EXPECT_STREQ(DifferenceOf(differences.get(), "Vendor_Name").before.text, "\xEF\xBF\xBD");
}

TEST(CDifferencesTest, FindingsThatOnlyOneFileHasAreFixedOrAdded) {
  const FindingsPointer before = Check("no declaration\n", "a.txt");
  const FindingsPointer after = Check("PID: 1\nPID: 2\n", "a.txt");
  vif_findings* fixed = nullptr;
  vif_findings* added = nullptr;
  ASSERT_EQ(vif_compare_findings(before.get(), after.get(), nullptr, &fixed, &added, nullptr), VIF_OK);
  const FindingsPointer fixedOwner(fixed);
  const FindingsPointer addedOwner(added);
  ASSERT_GE(vif_findings_count(fixed), 1U);
  EXPECT_STREQ(FindingAt(fixed, 0).code, "not-a-declaration");
  ASSERT_GE(vif_findings_count(added), 1U);
  EXPECT_STREQ(FindingAt(added, 0).code, "declared-twice");
  const DifferencesPointer same = Compare("", "");
  vif_findings* none = nullptr;
  vif_findings* neither = nullptr;
  ASSERT_EQ(vif_compare_findings(before.get(), before.get(), same.get(), &none, &neither, nullptr), VIF_OK);
  const FindingsPointer noneOwner(none);
  const FindingsPointer neitherOwner(neither);
  EXPECT_EQ(vif_findings_count(none) + vif_findings_count(neither), 0U);
}

TEST(CDifferencesTest, ArgumentsMustNotBeNull) {
  const FilePointer file = FileOf("PID: 1\n");
  vif_differences* differences = nullptr;
  EXPECT_EQ(vif_compare(nullptr, file.get(), nullptr, nullptr, &differences, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_compare(file.get(), nullptr, nullptr, nullptr, &differences, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_compare(file.get(), file.get(), nullptr, nullptr, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  auto difference = Sized<vif_difference>();
  auto change = Sized<vif_group_change>();
  EXPECT_EQ(vif_differences_get(nullptr, 0, &difference), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_differences_group(nullptr, 0, &change), VIF_ERROR_ARGUMENT);
  const DifferencesPointer none = Compare(file.get(), file.get());
  EXPECT_EQ(vif_differences_get(none.get(), 0, &difference), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_differences_group(none.get(), 0, &change), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_differences_count(nullptr), 0U);
  EXPECT_EQ(vif_differences_group_count(nullptr), 0U);
  vif_differences_free(nullptr);
  const FindingsPointer findings = Check("", "a.txt");
  vif_findings* fixed = nullptr;
  vif_findings* added = nullptr;
  EXPECT_EQ(vif_compare_findings(nullptr, findings.get(), nullptr, &fixed, &added, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_compare_findings(findings.get(), nullptr, nullptr, &fixed, &added, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_compare_findings(findings.get(), findings.get(), nullptr, nullptr, &added, nullptr),
            VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_compare_findings(findings.get(), findings.get(), nullptr, &fixed, nullptr, nullptr),
            VIF_ERROR_ARGUMENT);
}

}  // namespace

// Checks through the C interface.
#include "Handles.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <string>

namespace {

using testing::HasSubstr;
using namespace testsupport;

constexpr const char* kText = "PID: 1\nthis is no declaration\nPID: 2\n";

std::vector<std::string> CodesOf(const vif_findings* findings) {
  std::vector<std::string> codes;
  for (std::size_t i = 0; i < vif_findings_count(findings); ++i) codes.emplace_back(FindingAt(findings, i).code);
  return codes;
}

TEST(CCheckTest, FindingsSayWhatIsWrongWhere) {
  const FindingsPointer findings = Check(kText, "a.txt");
  ASSERT_GE(vif_findings_count(findings.get()), 2U);
  const vif_finding first = FindingAt(findings.get(), 0);
  EXPECT_STREQ(first.code, "not-a-declaration");
  EXPECT_EQ(first.severity, VIF_SEVERITY_ERROR);
  EXPECT_EQ(first.line, 2U);
  EXPECT_EQ(first.column, 0U);
  EXPECT_THAT(first.message, HasSubstr("yields no field"));
  EXPECT_STREQ(FindingAt(findings.get(), 1).element, "PID");
}

TEST(CCheckTest, OptionsSayWhatToReport) {
  auto options = Sized<vif_check_options>();
  const char* codes[] = {"Declared-Twice", "no-such-code"};
  options.only = codes;
  options.only_count = 2;
  EXPECT_THAT(CodesOf(Check(kText, "a.txt", &options).get()), testing::ElementsAre("declared-twice"));
  options.except = codes;
  options.except_count = 1;
  EXPECT_THAT(CodesOf(Check(kText, "a.txt", &options).get()), testing::IsEmpty());
  options = Sized<vif_check_options>();
  EXPECT_THAT(CodesOf(Check("Externally_Powered: 1\n", "a.txt", &options).get()), testing::IsEmpty());
  options.notes = 1;
  EXPECT_THAT(CodesOf(Check("Externally_Powered: 1\n", "a.txt", &options).get()), testing::ElementsAre("older-name"));
}

TEST(CCheckTest, TextsOfFindingsAreUtf8) {
  const FindingsPointer findings = Check("P\xFFID: 1\n", "a.txt");
  ASSERT_GE(vif_findings_count(findings.get()), 1U);
  EXPECT_STREQ(FindingAt(findings.get(), 0).element, "P\xEF\xBF\xBDID");
}

TEST(CCheckTest, ChecksFiles) {
  const TempDir dir;
  const std::string path = dir.Write("a.txt", kText).string();
  vif_findings* findings = nullptr;
  ASSERT_EQ(vif_check_file(path.c_str(), nullptr, nullptr, &findings, nullptr), VIF_OK);
  const FindingsPointer owner(findings);
  EXPECT_EQ(CodesOf(findings), CodesOf(Check(kText, "a.txt").get()));
}

TEST(CCheckTest, AFileThatIsNotValidHasFindings) {
  EXPECT_THAT(CodesOf(Check("<a/>", "a.xml").get()), testing::ElementsAre("not-valid"));
}

TEST(CCheckTest, FilesThatCannotBeCheckedAreRefused) {
  const TempDir dir;
  std::filesystem::create_directory(dir.Path() / "folder.txt");
  CError error;
  vif_findings* findings = nullptr;
  const auto check = [&](const char* name) {
    return vif_check_file((dir.Path() / name).string().c_str(), nullptr, nullptr, &findings, error.Receive());
  };
  EXPECT_EQ(check("missing.txt"), VIF_ERROR_NO_FILE);
  EXPECT_EQ(error.Message(), "there is no such file");
  EXPECT_EQ(check("folder.txt"), VIF_ERROR_FILE);
  dir.Write("a.json", "");
  EXPECT_EQ(check("a.json"), VIF_ERROR_FORM);
  EXPECT_EQ(vif_check_bytes("", 0, "a", nullptr, nullptr, &findings, error.Receive()), VIF_ERROR_FORM);
  EXPECT_EQ(findings, nullptr);
}

TEST(CCheckTest, ArgumentsMustNotBeNull) {
  vif_findings* findings = nullptr;
  EXPECT_EQ(vif_check_file(nullptr, nullptr, nullptr, &findings, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_check_file("a.txt", nullptr, nullptr, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_check_bytes(nullptr, 1, "a.txt", nullptr, nullptr, &findings, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_check_bytes("", 0, nullptr, nullptr, nullptr, &findings, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_check_bytes("", 0, "a.txt", nullptr, nullptr, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  auto options = Sized<vif_check_options>();
  options.only_count = 1;
  EXPECT_EQ(vif_check_bytes("", 0, "a.txt", &options, nullptr, &findings, nullptr), VIF_ERROR_ARGUMENT);
  const char* codes[] = {nullptr};
  options.only = codes;
  EXPECT_EQ(vif_check_bytes("", 0, "a.txt", &options, nullptr, &findings, nullptr), VIF_ERROR_ARGUMENT);
  auto finding = Sized<vif_finding>();
  EXPECT_EQ(vif_findings_get(nullptr, 0, &finding), VIF_ERROR_ARGUMENT);
  const FindingsPointer some = Check(kText, "a.txt");
  EXPECT_EQ(vif_findings_get(some.get(), vif_findings_count(some.get()), &finding), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_findings_get(some.get(), 0, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_findings_count(nullptr), 0U);
  vif_findings_free(nullptr);
}

}  // namespace

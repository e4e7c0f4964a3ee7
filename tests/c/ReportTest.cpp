// Reports through the C interface.
#include "Handles.h"

#include <VIFContent.h>
#include <VendorInfoFile.h>
#include <analysis/Check.h>
#include <analysis/Report.h>
#include <gtest/gtest.h>

#include <string>

namespace {

using namespace testsupport;
using vifanalysis::MakeReport;

constexpr const char* kBefore = "PID: 1\nno declaration\n";
constexpr const char* kAfter = "PID: 2\n$Vendor_Name: \"\xFF\"\n";

/// A file with its findings, for both interfaces.
struct Subject {
  explicit Subject(const char* text) : file(FileOf(text, "a.txt")), findings(Check(text, "a.txt")) {
    AppendVifContent(vif, text, "a.txt");
    found = vifanalysis::CheckContent(text, "a.txt");
    reported.file = file.get();
    reported.findings = findings.get();
  }

  vifanalysis::ReportedFile InCpp() const { return {"a.txt", vif.Fields(), found}; }

  FilePointer file;
  FindingsPointer findings;
  vif_reported_file reported = Sized<vif_reported_file>();
  CVendorInfoFile vif;
  std::vector<vifanalysis::Finding> found;
};

std::string Report(const vif_reported_file* file, const vif_reported_file* after = nullptr) {
  vif_text* page = nullptr;
  EXPECT_EQ(vif_report(file, after, nullptr, &page, nullptr), VIF_OK);
  std::string text(vif_text_data(page), vif_text_size(page));
  vif_text_free(page);
  return text;
}

TEST(CReportTest, IsThePageThatTheAnalysisMakes) {
  const Subject before(kBefore);
  const Subject after(kAfter);
  EXPECT_EQ(Report(&before.reported), MakeReport(before.InCpp()));
  EXPECT_EQ(Report(&before.reported, &after.reported), MakeReport(before.InCpp(), after.InCpp()));
}

TEST(CReportTest, TheNameMayBeAnother) {
  Subject subject(kBefore);
  subject.reported.name = "another.txt";
  vifanalysis::ReportedFile expected = subject.InCpp();
  expected.name = "another.txt";
  EXPECT_EQ(Report(&subject.reported), MakeReport(expected));
}

TEST(CReportTest, FindingsMayBeMissing) {
  Subject subject(kBefore);
  subject.reported.findings = nullptr;
  vifanalysis::ReportedFile expected = subject.InCpp();
  expected.findings = {};
  EXPECT_EQ(Report(&subject.reported), MakeReport(expected));
}

TEST(CReportTest, ArgumentsMustNotBeNull) {
  Subject subject(kBefore);
  vif_text* page = nullptr;
  EXPECT_EQ(vif_report(nullptr, nullptr, nullptr, &page, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(vif_report(&subject.reported, nullptr, nullptr, nullptr, nullptr), VIF_ERROR_ARGUMENT);
  subject.reported.file = nullptr;
  EXPECT_EQ(vif_report(&subject.reported, nullptr, nullptr, &page, nullptr), VIF_ERROR_ARGUMENT);
  subject.reported.size = 0;
  EXPECT_EQ(vif_report(&subject.reported, nullptr, nullptr, &page, nullptr), VIF_ERROR_ARGUMENT);
  EXPECT_EQ(page, nullptr);
  EXPECT_STREQ(vif_text_data(nullptr), "");
  EXPECT_EQ(vif_text_size(nullptr), 0U);
  vif_text_free(nullptr);
}

}  // namespace

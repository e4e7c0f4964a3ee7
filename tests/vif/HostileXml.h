// XML files that only a broken program would write by accident.
#pragma once

#include "VIFInvalidFile.h"
#include "VendorInfoFile.h"
#include "support/AppendFile.h"
#include "support/CodePage.h"
#include "support/FieldText.h"
#include "support/TempDir.h"
#include "support/Watchdog.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <string>
#include <string_view>
#include <vector>

namespace testsupport {

inline const std::string kBegin = "<VIF xmlns='http://usb.org/VendorInfoFile.xsd'>";
inline const std::string kEnd = "</VIF>";

/// Appends files to an object that already holds fields.
class HostileXmlTest : public testing::Test {
 protected:
  HostileXmlTest() : m_vif(m_dir.Write("held.txt", "USB_VID: 1")), m_held(FieldTexts(*m_vif.GetFields())) {}

  /// Appends a file. Either it is loaded, or the error has the expected form and printable reasons and the object is
  /// unchanged.
  /// \return whether it was loaded, and the reasons if not
  testing::AssertionResult AppendFile(const std::filesystem::path& path) {
    m_reasons.clear();
    const auto countBefore = m_vif.Count();
    try {
      testsupport::AppendFile(m_vif, path);
      return testing::AssertionSuccess();
    } catch (const CVIFInvalidFile& error) {
      EXPECT_EQ(error.what(), QuotedPath(path) + " is not a valid Vendor Info File.");
      EXPECT_FALSE(error.Problems().empty());
      for (const DOMDocProblem& problem : error.Problems()) CheckProblem(problem);
    }
    EXPECT_EQ(m_vif.Count(), countBefore);
    return testing::AssertionFailure() << testing::PrintToString(m_reasons);
  }

  testing::AssertionResult Append(std::string_view content) { return AppendFile(m_dir.Write("x.xml", content)); }

  /// Appends a VIF with that content.
  testing::AssertionResult AppendVif(const std::string& content) { return Append(kBegin + content + kEnd); }

  /// Whether the content was refused for that reason alone.
  bool IsRefused(const std::string& content, const std::string& reason) {
    return !Append(content) && m_reasons == std::vector<std::string>{reason};
  }

  const std::vector<std::string>& Reasons() const { return m_reasons; }
  const TempDir& Dir() const { return m_dir; }

  /// The fields from the last appended file.
  std::vector<std::string> NewFields() const {
    std::vector<std::string> fields = FieldTexts(*m_vif.GetFields());
    fields.erase(fields.begin(), fields.begin() + static_cast<std::ptrdiff_t>(m_held.size()));
    return fields;
  }

 private:
  void CheckProblem(const DOMDocProblem& problem) {
    EXPECT_NE(problem.reason, "");
    EXPECT_LT(problem.reason.size(), 2000U);
    EXPECT_LT(problem.element.size(), 2000U);
    for (const char c : problem.reason + problem.element) ASSERT_GE(static_cast<unsigned char>(c), 0x20U);
    m_reasons.push_back(problem.reason);
  }

  CWatchdog m_watchdog{std::chrono::minutes(2)};
  TempDir m_dir;
  CVendorInfoFile m_vif;
  std::vector<std::string> m_held;
  std::vector<std::string> m_reasons;
};

}  // namespace testsupport

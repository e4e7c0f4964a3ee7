// Shared by the tests with files that misbehave.
#pragma once

#include "FileCalls.h"
#include "VIFInvalidFile.h"
#include "VIFTextCheck.h"
#include "VIFXmlCheck.h"
#include "VendorInfoFile.h"
#include "support/AppendFile.h"
#include "support/FieldText.h"
#include "support/TempDir.h"
#include "support/Watchdog.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <filesystem>
#include <fstream>
#include <ostream>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>
#include <vector>

namespace testsupport {

/// The outcome of reading a file.
struct ReadOutcome {
  std::vector<std::string> found;  ///< fields, or what a check reports
  std::string error;               ///< how it failed; empty on success

  friend bool operator==(const ReadOutcome&, const ReadOutcome&) = default;
  friend void PrintTo(const ReadOutcome& outcome, std::ostream* stream) {
    *stream << testing::PrintToString(outcome.found) << ", error: \"" << outcome.error << '"';
  }
};

/// Runs an action that reads a file.
/// \return the message of its exception, followed by the reasons why a file is invalid; empty if it succeeds
template <typename Action>
std::string ErrorOf(const Action& action) {
  try {
    action();
  } catch (const CVIFInvalidFile& error) {
    std::string text = error.what();
    for (const DOMDocProblem& problem : error.Problems()) text += " " + problem.reason;
    return text;
  } catch (const std::filesystem::filesystem_error& error) {
    return "filesystem error: " + error.code().message();
  } catch (const std::exception& error) {
    return error.what();
  }
  return {};
}

/// Reads text the way checking does.
inline ReadOutcome CheckText(const std::filesystem::path& path) {
  ReadOutcome outcome;
  const auto take = [&](std::size_t line, const std::string& what) {
    outcome.found.push_back(std::to_string(line) + ": " + what);
  };
  outcome.error = ErrorOf([&] {
    CheckTextVif(
        path, [&](const VifLineReport& report) { take(report.line, "problem " + std::to_string(int{report.problem})); },
        nullptr, [&](std::size_t line, const CVIFField& field) { take(line, FieldText(field)); });
  });
  return outcome;
}

/// Reads XML the way checking does.
inline ReadOutcome CheckXml(const std::filesystem::path& path) {
  ReadOutcome outcome;
  outcome.error = ErrorOf([&] {
    CheckXmlVif(path, [&](const VifElementReport& report) {
      outcome.found.push_back(std::to_string(int{report.fate}) + " " + report.path);
    });
  });
  return outcome;
}

/// Holds an object with the fields of a file of each form.
class CFileTest : public testing::Test {
 protected:
  static constexpr std::string_view kXmlHead =
      "<?xml version='1.0' encoding='utf-8'?>\n<VIF xmlns='http://usb.org/VendorInfoFile.xsd'>";
  static constexpr std::string_view kXml =
      "<?xml version='1.0' encoding='utf-8'?>\n<VIF xmlns='http://usb.org/VendorInfoFile.xsd'>\n"
      "<Vendor_Name>G\u00E4nger \u20AC <![CDATA[\U0001F50C]]></Vendor_Name><!-- c -->\n"
      "<Component><SrcPdoList><SrcPDO><Src_PDO_Voltage value='100'>5 V</Src_PDO_Voltage></SrcPDO></SrcPdoList>"
      "</Component></VIF>\n";
  static constexpr std::string_view kText =
      "$Vendor_Name: \"G\u00E4nger \u20AC\" ; \U0001F50C\r\n"
      "; comment\r\n"
      "Src_PDO_Voltage1: 100 ; 5 V\n"
      "\n"
      "not a declaration\n"
      "Own_Name: 0x1F";

  CFileTest() {
    testsupport::AppendFile(m_vif, m_dir.Write("held.txt", "USB_VID: 1\n"));
    testsupport::AppendFile(m_vif, m_dir.Write("held.xml", kXml));
    m_held = FieldTexts(m_vif.Fields());
  }

  void SetUp() override {
    const CFileCalls calls(m_dir.Path() / "held.txt", [](const FileCall&) { return FileCallFate(); });
    ASSERT_TRUE(std::filesystem::exists(m_dir.Path() / "held.txt"));
    std::ifstream(m_dir.Path() / "held.txt").get();
    for (const auto kind : {FileCall::Kind::Stat, FileCall::Kind::Open, FileCall::Kind::Read}) {
      if (calls.Count(kind) == 0) GTEST_SKIP() << "this C library's calls have other names";
    }
  }

  const TempDir& Dir() const { return m_dir; }
  std::filesystem::path TextPath() const { return m_dir.Path() / "x.txt"; }
  std::filesystem::path XmlPath() const { return m_dir.Path() / "x.xml"; }

  /// Writes the file anew, so that nothing done to it before remains.
  std::filesystem::path WriteText(std::string_view content = kText) const { return Write("x.txt", content); }
  std::filesystem::path WriteXml(std::string_view content = kXml) const { return Write("x.xml", content); }

  /// Appends a file to the object that holds others, and expects that none of their fields is lost or changed.
  ReadOutcome Append(const std::filesystem::path& path) {
    CVendorInfoFile vif = m_vif;
    ReadOutcome outcome;
    outcome.error = ErrorOf([&] { testsupport::AppendFile(vif, path); });
    outcome.found = FieldTexts(vif.Fields());
    const auto afterHeld = outcome.found.begin() + static_cast<std::ptrdiff_t>(std::min(m_held.size(), vif.Count()));
    EXPECT_EQ(std::vector(outcome.found.begin(), afterHeld), m_held);
    outcome.found.erase(outcome.found.begin(), afterHeld);
    EXPECT_EQ(vif.FileName(), (m_dir.Path() / "held.txt").wstring());
    EXPECT_GE(vif.ComponentCount(), m_vif.ComponentCount());
    m_newComponents = vif.ComponentCount() - m_vif.ComponentCount();
    return outcome;
  }

  auto Appending() {
    return [this](const std::filesystem::path& path) { return Append(path); };
  }

  /// How many components the last appended file has added.
  std::size_t NewComponents() const { return m_newComponents; }

  static ReadOutcome Ended(std::string error) { return {{}, std::move(error)}; }

  // Messages of refusals.
  static std::string NoFile(const std::filesystem::path& path) {
    return "VIF Does not exist. (name: " + path.native() + ")";
  }
  static std::string NotOpened(const std::filesystem::path& path) {
    return "Couldn't open Vendor Info File: " + path.native() + ".";
  }
  static std::string Invalid(const std::filesystem::path& path, const std::string& reason) {
    return path.native() + " is not a valid Vendor Info File. " + reason;
  }
  static std::string ErrorText(int number) { return std::generic_category().message(number); }

 private:
  std::filesystem::path Write(const char* name, std::string_view content) const {
    std::filesystem::remove_all(m_dir.Path() / name);
    return m_dir.Write(name, content);
  }

  CWatchdog m_watchdog{std::chrono::minutes(1)};
  TempDir m_dir;
  CVendorInfoFile m_vif;
  std::vector<std::string> m_held;
  std::size_t m_newComponents = 0;
};

}  // namespace testsupport

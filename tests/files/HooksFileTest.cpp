// A test-suite host whose operator chooses files that misbehave.
#include "FileTest.h"
#include "testsuite/RecordingHost.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <string>

namespace {

using testsupport::CFileCalls;
using testsupport::FileCall;
using testsupport::FileCallFate;
using testsupport::FileScript;

namespace fs = std::filesystem;

using Kind = FileCall::Kind;

constexpr TEST_STATUS kDone = 1;

FileScript Fails(Kind kind, int error) {
  return [=](const FileCall& call) { return FileCallFate{call.kind == kind ? error : 0}; };
}

class HooksFileTest : public testsupport::CFileTest {
 protected:
  /// Has the operator choose a file that behaves as the script says. The VIF published before stays published.
  void ExpectRefusal(const fs::path& file, const FileScript& script, const std::string& reason) {
    m_host.suiteLog.SetVifFileName((Dir().Path() / "held.txt").c_str());
    ASSERT_EQ(m_host.Initialize(), kDone);
    const CVendorInfoFile* former = CAppState::TestSuiteVIF();
    ASSERT_NE(former, nullptr);
    m_host.suiteLog.SetVifFileName(file.c_str());
    {
      const CFileCalls calls(file, script);
      EXPECT_EQ(m_host.Initialize(), kDone);
    }
    EXPECT_EQ(m_host.log.Lines().back(), "4000000 L Unexpected error creating " + file.native() + ": " + reason + ".");
    EXPECT_EQ(CAppState::TestSuiteVIF(), former);
    EXPECT_EQ(former->Count(), 1U);
    EXPECT_EQ(m_host.Cleanup(), kDone);
  }

  testsupport::CRecordingHost& Host() { return m_host; }

 private:
  testsupport::CRecordingHost m_host;
};

TEST_F(HooksFileTest, FileThatCannotBeOpened) {
  ExpectRefusal(WriteText(), Fails(Kind::Open, EIO), NotOpened(TextPath()));
  ExpectRefusal(WriteXml(), Fails(Kind::Open, EIO), XmlPath().native() + " is not a valid Vendor Info File.");
}

TEST_F(HooksFileTest, FileThatCannotBeExamined) {
  for (const fs::path& file : {WriteText(), WriteXml()}) {
    const fs::filesystem_error error("exists", file, std::error_code(EIO, std::generic_category()));
    ExpectRefusal(file, Fails(Kind::Stat, EIO), error.what());
  }
}

TEST_F(HooksFileTest, FileThatVanishes) {
  const auto vanishes = [](const fs::path& file) -> FileScript {
    return [=](const FileCall& call) {
      if (call.kind == Kind::Open) fs::remove(file);
      return FileCallFate();
    };
  };
  ExpectRefusal(WriteText(), vanishes(TextPath()), NotOpened(TextPath()));
  ExpectRefusal(WriteXml(), vanishes(XmlPath()), XmlPath().native() + " is not a valid Vendor Info File.");
}

TEST_F(HooksFileTest, XmlThatCannotBeRead) {
  ExpectRefusal(WriteXml(), Fails(Kind::Read, EIO), XmlPath().native() + " is not a valid Vendor Info File.");
}

TEST_F(HooksFileTest, TextThatCannotBeReadToItsEndIsPublishedUpToTheError) {
  Host().suiteLog.SetVifFileName(WriteText("PID: 1\nPID: 2\n").c_str());
  const CFileCalls calls(TextPath(), [](const FileCall& call) {
    return FileCallFate{call.kind == Kind::Read && call.position > 0 ? EIO : 0, 10};
  });
  EXPECT_EQ(Host().Initialize(), kDone);
  EXPECT_EQ(Host().log.Lines().size(), 2U);
  ASSERT_NE(CAppState::TestSuiteVIF(), nullptr);
  EXPECT_EQ(CAppState::TestSuiteVIF()->Count(), 1U);
}

TEST_F(HooksFileTest, OddNamesAreLoggedUnchanged) {
  for (const char* name : {"%s%n%1$s%ls.txt", "{}{0}.xml", "a\nb\r\t\x1B[31m.txt", "%", "--help"}) {
    const std::string path = (Dir().Path() / name).native();
    Host().suiteLog.SetVifFileName(path.c_str());
    EXPECT_EQ(Host().Initialize(), kDone);
    const std::vector<std::string>& lines = Host().log.Lines();
    EXPECT_EQ(lines[lines.size() - 3], "4000000 Selected VIF: " + path + ".");
    EXPECT_EQ(lines.back(), "4000000 L Unexpected error creating " + path + ": " + NoFile(path) + ".");
    EXPECT_EQ(CAppState::TestSuiteVIF(), nullptr);
  }
}

TEST_F(HooksFileTest, OddNamesOfLoadedFilesAreLoggedUnchanged) {
  for (const char* name : {"%s%n%1$s%ls.txt", "{}{0}.txt", "a\nb\r\t\x1B[31m.txt"}) {
    const std::string path = Dir().Write(name, kText).native();
    Host().suiteLog.SetVifFileName(path.c_str());
    EXPECT_EQ(Host().Initialize(), kDone);
    EXPECT_NE(CAppState::TestSuiteVIF(), nullptr);
    EXPECT_EQ(Host().Cleanup(), kDone);
    EXPECT_EQ(Host().log.Lines().back(), "4000000 L Deleting Test Suite VIF: " + path);
  }
}

}  // namespace

// Files that grow while they are read.
#include "FileTest.h"

#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <cstddef>
#include <fstream>
#include <string>
#include <string_view>
#include <thread>

namespace {

using testsupport::CFileCalls;
using testsupport::CheckText;
using testsupport::CheckXml;
using testsupport::FileCall;
using testsupport::FileCallFate;
using testsupport::FileScript;
using testsupport::ReadOutcome;

namespace fs = std::filesystem;

constexpr std::size_t kSteps = 500;

/// Appends a piece to a file before each of many reads, and returns at most the length of a piece per read.
FileScript GrowsBeforeReads(const fs::path& file, std::string piece) {
  return [=](const FileCall& call) -> FileCallFate {
    if (call.kind != FileCall::Kind::Read) return {};
    if (call.number <= kSteps) std::ofstream(file, std::ios::app) << piece;
    return {0, piece.size()};
  };
}

std::string Repeated(std::string_view piece, std::size_t count) {
  std::string text;
  for (std::size_t i = 0; i < count; ++i) text += piece;
  return text;
}

/// Appends to a file as fast as it can while it lives, up to a limit.
class CWriter {
 public:
  CWriter(fs::path file, std::string piece) : m_thread([this, file, piece] { Write(file, piece); }) {}
  CWriter(const CWriter&) = delete;
  CWriter& operator=(const CWriter&) = delete;
  ~CWriter() {
    m_hasEnded = true;
    m_thread.join();
  }

 private:
  void Write(const fs::path& file, const std::string& piece) const {
    constexpr std::size_t mostBytes = 16'000'000;
    std::ofstream stream(file, std::ios::app);
    for (std::size_t size = 0; size < mostBytes && !m_hasEnded; size += piece.size()) stream << piece << std::flush;
  }

  std::atomic<bool> m_hasEnded = false;
  std::thread m_thread;
};

class GrowingFileTest : public testsupport::CFileTest {};

TEST_F(GrowingFileTest, TextIsReadToItsNewEnd) {
  const std::string line = "PID: 1\n";
  const ReadOutcome whole = Append(WriteText(Repeated(line, kSteps + 1)));
  const ReadOutcome checked = CheckText(TextPath());
  ASSERT_EQ(whole.found.size(), kSteps + 1);
  WriteText(line);
  {
    const CFileCalls calls(TextPath(), GrowsBeforeReads(TextPath(), line));
    EXPECT_EQ(Append(TextPath()), whole);
  }
  WriteText(line);
  const CFileCalls calls(TextPath(), GrowsBeforeReads(TextPath(), line));
  EXPECT_EQ(CheckText(TextPath()), checked);
}

TEST_F(GrowingFileTest, TextThatGrowsAfterItsEndIsReachedIsNotReadOn) {
  WriteText("PID: 1");
  const CFileCalls calls(TextPath(), [&](const FileCall& call) -> FileCallFate {
    if (call.kind == FileCall::Kind::Read && call.number == 3) std::ofstream(TextPath(), std::ios::app) << "23\n";
    return {};
  });
  EXPECT_EQ(Append(TextPath()).found, std::vector<std::string>{"PID=1 @6.3"});
}

TEST_F(GrowingFileTest, XmlMayGrowByWhatMayFollowTheRoot) {
  const ReadOutcome whole = Append(WriteXml());
  const ReadOutcome checked = CheckXml(XmlPath());
  for (const char* piece : {" ", "<!--c-->", "\n<?p i?>"}) {
    WriteXml();
    {
      const CFileCalls calls(XmlPath(), GrowsBeforeReads(XmlPath(), piece));
      EXPECT_EQ(Append(XmlPath()), whole) << piece;
    }
    WriteXml();
    const CFileCalls calls(XmlPath(), GrowsBeforeReads(XmlPath(), piece));
    EXPECT_EQ(CheckXml(XmlPath()), checked) << piece;
  }
}

TEST_F(GrowingFileTest, XmlThatGrowsByAnythingElseIsRefused) {
  WriteXml();
  const CFileCalls calls(XmlPath(), GrowsBeforeReads(XmlPath(), "<TID>" + std::string(100, 'x') + "</TID>"));
  const ReadOutcome outcome = Append(XmlPath());
  EXPECT_TRUE(outcome.found.empty());
  EXPECT_TRUE(outcome.error.starts_with(Invalid(XmlPath(), ""))) << outcome.error;
}

// The same without a script.

TEST_F(GrowingFileTest, TextThatAnotherThreadAppendsToIsReadLineByLine) {
  const std::string line = "; " + std::string(2000, 'x') + "\nPID: 1\n";
  WriteText(line);
  const CWriter writer(TextPath(), line);
  for (int i = 0; i < 5; ++i) {
    const ReadOutcome outcome = Append(TextPath());
    EXPECT_EQ(outcome.error, "");
    EXPECT_FALSE(outcome.found.empty());
    for (const std::string& field : outcome.found) ASSERT_EQ(field, "PID=1 @6.3");
  }
}

TEST_F(GrowingFileTest, XmlThatAnotherThreadAppendsToIsRead) {
  const ReadOutcome whole = Append(WriteXml());
  const CWriter writer(XmlPath(), std::string(2000, '\n'));
  for (int i = 0; i < 5; ++i) EXPECT_EQ(Append(XmlPath()), whole);
}

}  // namespace

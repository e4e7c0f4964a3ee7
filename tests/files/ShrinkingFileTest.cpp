// Files that become shorter while they are read.
#include "FileTest.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <string>
#include <string_view>

namespace {

using testsupport::CFileCalls;
using testsupport::CheckText;
using testsupport::CheckXml;
using testsupport::FileCall;
using testsupport::FileCallFate;
using testsupport::FileScript;
using testsupport::ReadOutcome;

namespace fs = std::filesystem;

/// Cuts the file before its first call of that kind.
FileScript IsCutBefore(FileCall::Kind kind, const fs::path& file, std::size_t size) {
  return [=](const FileCall& call) -> FileCallFate {
    if (call.kind == kind && call.number == 1) fs::resize_file(file, size);
    return {};
  };
}

constexpr std::size_t kPiece = 16;

/// Cuts the file once that much of it has been read, in pieces.
FileScript IsCutAt(std::size_t position, const fs::path& file, std::size_t size) {
  return [=](const FileCall& call) -> FileCallFate {
    if (call.kind == FileCall::Kind::Read && call.position == position) fs::resize_file(file, size);
    return {0, kPiece};
  };
}

class ShrinkingFileTest : public testsupport::CFileTest {
 protected:
  /// Cuts the file at every read position and to every size, and expects the same as for a file that consists only of
  /// what was then read.
  template <typename Write, typename Read>
  static void ExpectPrefixesAreRead(std::string_view content, const Write& write, const Read& read) {
    std::vector<ReadOutcome> prefixes;
    for (std::size_t size = 0; size <= content.size(); ++size) prefixes.push_back(read(write(content.substr(0, size))));
    for (std::size_t position = 0; position <= content.size(); position += kPiece) {
      for (std::size_t size = 0; size <= content.size(); size += size < position ? 13 : 1) {
        const fs::path file = write(content);
        const CFileCalls calls(file, IsCutAt(position, file, size));
        ASSERT_EQ(read(file), prefixes[std::max(position, size)]) << "cut to " << size << " after reading " << position;
      }
    }
  }

  auto WritingText() {
    return [this](std::string_view content) { return WriteText(content); };
  }
  auto WritingXml() {
    return [this](std::string_view content) { return WriteXml(content); };
  }
};

TEST_F(ShrinkingFileTest, TextEndsWhereItIsCut) { ExpectPrefixesAreRead(kText, WritingText(), Appending()); }

TEST_F(ShrinkingFileTest, CheckedTextEndsWhereItIsCut) { ExpectPrefixesAreRead(kText, WritingText(), CheckText); }

TEST_F(ShrinkingFileTest, XmlEndsWhereItIsCut) {
  constexpr std::string_view xml =
      "<VIF xmlns='http://usb.org/VendorInfoFile.xsd'><TID value='1'>\u00E4</TID><!--c--></VIF>";
  ExpectPrefixesAreRead(xml, WritingXml(), Appending());
  ExpectPrefixesAreRead(xml, WritingXml(), CheckXml);
}

TEST_F(ShrinkingFileTest, XmlCutAnywhereKeepsWhatWasLoadedBefore) {
  for (std::size_t size = 0; size + 1 < kXml.size(); ++size) {
    WriteXml();
    const CFileCalls calls(XmlPath(), IsCutAt(0, XmlPath(), size));
    const ReadOutcome outcome = Append(XmlPath());
    EXPECT_TRUE(outcome.found.empty()) << size;
    EXPECT_TRUE(outcome.error.starts_with(Invalid(XmlPath(), ""))) << size;
  }
}

// As long as a page or a single read, or one byte more or less.
TEST_F(ShrinkingFileTest, LongTextEndsWhereItIsCut) {
  std::string content;
  while (content.size() < 20'000) content += "PID: 1 ; \u20AC\n";
  for (const std::size_t size : {4095U, 4096U, 4097U, 8190U, 8191U, 8192U, 8193U, 12'288U}) {
    const ReadOutcome expected = Append(WriteText(content.substr(0, size)));
    for (const auto kind : {FileCall::Kind::Stat, FileCall::Kind::Open, FileCall::Kind::Read}) {
      WriteText(content);
      const CFileCalls calls(TextPath(), IsCutBefore(kind, TextPath(), size));
      EXPECT_EQ(Append(TextPath()), expected) << size;
    }
  }
}

TEST_F(ShrinkingFileTest, LongXmlEndsWhereItIsCut) {
  std::string content(kXmlHead);
  while (content.size() < 20'000) content += "<TID value='1'>\u20AC</TID>\n";
  for (const std::size_t size : {3999U, 4000U, 4001U, 4095U, 4096U, 4097U, 8000U, 8192U}) {
    const ReadOutcome expected = Append(WriteXml(content.substr(0, size)));
    EXPECT_TRUE(expected.error.starts_with(Invalid(XmlPath(), "")));
    for (const auto kind : {FileCall::Kind::Stat, FileCall::Kind::Open, FileCall::Kind::Status, FileCall::Kind::Read}) {
      WriteXml(content + "</VIF>");
      const CFileCalls calls(XmlPath(), IsCutBefore(kind, XmlPath(), size));
      EXPECT_EQ(Append(XmlPath()), expected) << size;
    }
  }
}

TEST_F(ShrinkingFileTest, EmptiedTextIsAComponentWithoutFields) {
  for (const auto kind : {FileCall::Kind::Stat, FileCall::Kind::Open, FileCall::Kind::Read}) {
    WriteText();
    const CFileCalls calls(TextPath(), IsCutBefore(kind, TextPath(), 0));
    EXPECT_EQ(Append(TextPath()), ReadOutcome());
    EXPECT_EQ(NewComponents(), 1U);
  }
}

}  // namespace

// Files that can be read only in part, or only in pieces.
#include "FileTest.h"

#include <gtest/gtest.h>

#include <cerrno>
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

/// That many bytes can be read, those after them cannot.
FileScript FailsAfter(std::size_t readable, int error = EIO) {
  return [=](const FileCall& call) -> FileCallFate {
    if (call.kind != FileCall::Kind::Read) return {};
    if (call.position >= readable) return {error};
    return {0, readable - call.position};
  };
}

/// Every read returns a few bytes at most.
FileScript InPieces(std::size_t size) {
  return [=](const FileCall&) { return FileCallFate{0, size}; };
}

/// A signal interrupts every other read.
FileCallFate InterruptOften(const FileCall& call) {
  return {call.kind == FileCall::Kind::Read && call.number % 2 == 1 ? EINTR : 0, 7};
}

std::string_view WholeLines(std::string_view text) { return text.substr(0, text.rfind('\n') + 1); }

std::string Utf16(std::string_view ascii, bool isBigEndian) {
  std::string bytes = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char c : ascii) bytes += isBigEndian ? std::string{'\0', c} : std::string{c, '\0'};
  return bytes;
}

class ReadErrorTest : public testsupport::CFileTest {
 protected:
  /// Expects the same from reading the file in pieces of any size as from reading it at once.
  template <typename Read>
  static void ExpectTheSameInPieces(const std::filesystem::path& path, const Read& read) {
    const ReadOutcome whole = read(path);
    EXPECT_EQ(whole.error, "");
    for (const std::size_t size : {1U, 2U, 3U, 5U, 64U}) {
      const CFileCalls calls(path, InPieces(size));
      EXPECT_EQ(read(path), whole) << size;
    }
    const CFileCalls calls(path, InterruptOften);
    EXPECT_EQ(read(path), whole);
  }
};

// Text: what could be read counts, and the error is silent.

TEST_F(ReadErrorTest, TextKeepsTheWholeLinesBeforeIt) {
  for (std::size_t readable = 0; readable <= kText.size(); ++readable) {
    const ReadOutcome expected = Append(WriteText(WholeLines(kText.substr(0, readable))));
    WriteText();
    const CFileCalls calls(TextPath(), FailsAfter(readable));
    EXPECT_EQ(Append(TextPath()), expected) << readable;
    EXPECT_EQ(NewComponents(), 1U);
  }
}

TEST_F(ReadErrorTest, CheckOfTextKeepsTheWholeLinesBeforeItAndReportsIt) {
  for (std::size_t readable = 0; readable <= kText.size(); ++readable) {
    const std::string_view before = WholeLines(kText.substr(0, readable));
    ReadOutcome expected = CheckText(WriteText(before));
    const auto line = 1 + std::count(before.begin(), before.end(), '\n');
    expected.found.push_back(std::to_string(line) + ": problem " + std::to_string(int{eVifLineReadFailed}));
    WriteText();
    const CFileCalls calls(TextPath(), FailsAfter(readable));
    EXPECT_EQ(CheckText(TextPath()), expected) << readable;
  }
}

TEST_F(ReadErrorTest, TextIsNotReadOnAfterATransientError) {
  WriteText("A: 1\nB: 2\nC: 3\n");
  const CFileCalls calls(TextPath(), [](const FileCall& call) {
    return FileCallFate{call.kind == FileCall::Kind::Read && call.number == 2 ? EIO : 0, 5};
  });
  EXPECT_EQ(Append(TextPath()).found, std::vector<std::string>{"A=1"});
  EXPECT_EQ(calls.Count(FileCall::Kind::Read), 2U);
}

TEST_F(ReadErrorTest, TextThatWouldBlockIsAnError) {
  WriteText("$A: \"x\"\nPID: 2\n");
  const CFileCalls calls(TextPath(), FailsAfter(10, EAGAIN));
  EXPECT_EQ(CheckText(TextPath()).found, (std::vector<std::string>{"1: problem 1", "1: $A=\"x\"", "2: problem 2"}));
}

TEST_F(ReadErrorTest, TextReadInPiecesGivesTheSame) {
  ExpectTheSameInPieces(WriteText(), Appending());
  ExpectTheSameInPieces(WriteText(), CheckText);
}

// XML: the error is the only reason.

TEST_F(ReadErrorTest, XmlIsRefusedForIt) {
  WriteXml();
  const ReadOutcome expected = Ended(Invalid(XmlPath(), "The file cannot be read: " + ErrorText(EIO) + "."));
  for (std::size_t readable = 0; readable <= kXml.size(); ++readable) {
    const CFileCalls calls(XmlPath(), FailsAfter(readable));
    EXPECT_EQ(Append(XmlPath()), expected) << readable;
    EXPECT_EQ(NewComponents(), 0U);
    EXPECT_EQ(CheckXml(XmlPath()), expected) << readable;
  }
}

TEST_F(ReadErrorTest, XmlIsRefusedForATransientError) {
  WriteXml();
  constexpr std::size_t piece = 5;
  constexpr std::size_t reads = (kXml.size() + piece - 1) / piece + 1;  // including the one at the end
  for (std::size_t number = 1; number <= reads; ++number) {
    const CFileCalls calls(XmlPath(), [=](const FileCall& call) {
      return FileCallFate{call.kind == FileCall::Kind::Read && call.number == number ? ENXIO : 0, piece};
    });
    EXPECT_EQ(Append(XmlPath()), Ended(Invalid(XmlPath(), "The file cannot be read: " + ErrorText(ENXIO) + ".")))
        << number;
  }
}

TEST_F(ReadErrorTest, XmlThatWouldBlockIsRefused) {
  WriteXml();
  const CFileCalls calls(XmlPath(), FailsAfter(kXmlHead.size(), EAGAIN));
  EXPECT_EQ(Append(XmlPath()), Ended(Invalid(XmlPath(), "The file cannot be read: " + ErrorText(EAGAIN) + ".")));
}

TEST_F(ReadErrorTest, XmlReadInPiecesGivesTheSame) {
  ExpectTheSameInPieces(WriteXml(), Appending());
  ExpectTheSameInPieces(WriteXml(), CheckXml);
}

TEST_F(ReadErrorTest, EncodingOfXmlIsDetectedInPieces) {
  const std::string declared = "<?xml version='1.0' encoding='UTF-16'?>";
  const std::string root = "<VIF xmlns='http://usb.org/VendorInfoFile.xsd'><TID>x</TID></VIF>";
  const std::string latin1 =
      "<?xml version='1.0' encoding='ISO-8859-1'?><VIF xmlns='http://usb.org/VendorInfoFile.xsd'><TID>\xE4</TID></VIF>";
  const std::string mark = "\xEF\xBB\xBF";
  for (const std::string& content :
       {mark + root, mark + std::string(kXml), Utf16(root, false), Utf16(root, true), Utf16(declared + root, false),
        Utf16(declared + root, false).substr(2), Utf16(declared + root, true).substr(2), latin1}) {
    ExpectTheSameInPieces(WriteXml(content), Appending());
  }
}

}  // namespace

// Splitting a stream into lines.
#include "LineSource.h"

#include "ScriptedBuffer.h"
#include "support/RunTimeErrorOf.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <ios>
#include <istream>
#include <new>
#include <sstream>
#include <streambuf>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vif {

namespace {

using namespace std::literals;
using testing::ElementsAre;
using testsupport::RunTimeErrorOf;
using testsupport::ScriptedBuffer;

constexpr std::size_t kChunkSize = 0x10000;

std::vector<std::string> LinesOf(CLineSource& source) {
  std::vector<std::string> lines;
  std::string_view line;
  while (source.Next(line)) lines.emplace_back(line);
  return lines;
}

std::vector<std::string> LinesOf(std::istream& stream) {
  CLineSource source(stream, "x.txt");
  return LinesOf(source);
}

std::vector<std::string> LinesOf(const std::string& text) {
  std::istringstream stream(text);
  return LinesOf(stream);
}

std::vector<std::string> CutAtLineFeeds(std::string_view text) {
  std::vector<std::string> lines;
  for (std::size_t at = text.find('\n'); at != std::string_view::npos; at = text.find('\n')) {
    lines.emplace_back(text.substr(0, at));
    text.remove_prefix(at + 1);
  }
  lines.emplace_back(text);
  return lines;
}

void FailToRead() { throw std::ios_base::failure("the disk is gone"); }

std::string FailureText() { return std::ios_base::failure("the disk is gone").what(); }

// Lines.

TEST(LineSourceTest, EmptyStreamIsOneEmptyLine) { EXPECT_THAT(LinesOf(""s), ElementsAre("")); }

TEST(LineSourceTest, LastLineNeedsNoLineFeed) { EXPECT_THAT(LinesOf("a\nb"s), ElementsAre("a", "b")); }

TEST(LineSourceTest, LastLineFeedIsFollowedByAnEmptyLine) {
  EXPECT_THAT(LinesOf("a\nb\n"s), ElementsAre("a", "b", ""));
}

TEST(LineSourceTest, EmptyLinesCount) { EXPECT_THAT(LinesOf("\n\na\n\n"s), ElementsAre("", "", "a", "", "")); }

TEST(LineSourceTest, OnlyLineFeedsEndALine) {
  EXPECT_THAT(LinesOf("a\r\nb\n\rc\rd\v\f\x85\n"s), ElementsAre("a\r", "b", "\rc\rd\v\f\x85", ""));
}

TEST(LineSourceTest, NulIsACharacterLikeAnyOther) { EXPECT_THAT(LinesOf("\0a\0\n\0"s), ElementsAre("\0a\0"s, "\0"s)); }

TEST(LineSourceTest, EveryByteIsPreserved) {
  std::string line;
  for (int i = 0; i < 256; ++i) {
    if (i != '\n') line.push_back(static_cast<char>(i));
  }
  EXPECT_THAT(LinesOf(line + "\n" + line), ElementsAre(line, line));
}

TEST(LineSourceTest, AfterTheLastLineThereIsNone) {
  std::istringstream stream("a");
  CLineSource source(stream, "x.txt");
  LinesOf(source);
  std::string_view line;
  EXPECT_FALSE(source.Next(line));
  EXPECT_FALSE(source.HasFailed());
}

TEST(LineSourceTest, BeginsAtTheStreamsPosition) {
  std::istringstream stream("ab\nc");
  stream.get();
  EXPECT_THAT(LinesOf(stream), ElementsAre("b", "c"));
}

TEST(LineSourceTest, StreamAtItsEndIsOneEmptyLine) {
  std::istringstream stream("a");
  stream.ignore(2);
  ASSERT_TRUE(stream.eof());
  EXPECT_THAT(LinesOf(stream), ElementsAre(""));
}

// Chunks.

TEST(LineSourceTest, LinesSpanTheEndOfAChunk) {
  for (std::size_t length = kChunkSize - 3; length <= kChunkSize + 3; ++length) {
    const std::string first(length, 'a');
    EXPECT_EQ(LinesOf(first + "\nb\nc"), (std::vector<std::string>{first, "b", "c"})) << length;
    EXPECT_EQ(LinesOf(first + "\n"), (std::vector<std::string>{first, ""})) << length;
    EXPECT_EQ(LinesOf(first), std::vector<std::string>{first}) << length;
  }
}

TEST(LineSourceTest, LineSpansManyChunks) {
  const std::string first = "first" + std::string(5 * kChunkSize, 'a') + "end";
  const std::string second = "second" + std::string(2 * kChunkSize, 'b') + "end";
  EXPECT_EQ(LinesOf(first + "\nx\n" + second), (std::vector<std::string>{first, "x", second}));
}

TEST(LineSourceTest, PiecesInWhichTheStreamArrivesMakeNoDifference) {
  const std::string text = "\na\r\n\n\rbcd\n\ne";
  for (std::size_t first = 1; first < text.size(); ++first) {
    for (std::size_t second = first + 1; second < text.size(); ++second) {
      ScriptedBuffer buffer({text.substr(0, first), text.substr(first, second - first), text.substr(second)});
      std::istream stream(&buffer);
      EXPECT_EQ(LinesOf(stream), CutAtLineFeeds(text)) << first << ' ' << second;
    }
  }
}

TEST(LineSourceTest, StreamMayArriveByteByByte) {
  const std::string text = "ab\n\ncd\n";
  std::vector<std::string> bytes;
  for (const char c : text) bytes.emplace_back(1, c);
  ScriptedBuffer buffer(bytes);
  std::istream stream(&buffer);
  EXPECT_EQ(LinesOf(stream), CutAtLineFeeds(text));
}

// Ends and failures.

TEST(LineSourceTest, EndIsNotAFailureUnderAnyExceptionMask) {
  constexpr std::ios_base::iostate bits[] = {std::ios::eofbit, std::ios::failbit, std::ios::badbit};
  for (unsigned chosen = 0; chosen < 8; ++chosen) {
    std::ios_base::iostate mask = std::ios::goodbit;
    for (unsigned bit = 0; bit < 3; ++bit) {
      if ((chosen >> bit & 1U) != 0) mask |= bits[bit];
    }
    std::istringstream stream("a\nb");
    stream.exceptions(mask);
    CLineSource source(stream, "x.txt");
    EXPECT_THAT(LinesOf(source), ElementsAre("a", "b")) << chosen;
    EXPECT_FALSE(source.HasFailed()) << chosen;
  }
}

TEST(LineSourceTest, FailureEndsTheLinesQuietlyByDefault) {
  ScriptedBuffer buffer({"a\nb\nc"}, FailToRead);
  std::istream stream(&buffer);
  CLineSource source(stream, "x.txt");
  EXPECT_THAT(LinesOf(source), ElementsAre("a", "b"));
  EXPECT_TRUE(source.HasFailed());
}

TEST(LineSourceTest, HasNotFailedBeforeItIsRead) {
  std::istringstream stream;
  EXPECT_FALSE(CLineSource(stream, "x.txt").HasFailed());
}

TEST(LineSourceTest, AfterAFailureThereIsNoLine) {
  ScriptedBuffer buffer({"a\nb"}, FailToRead);
  std::istream stream(&buffer);
  CLineSource source(stream, "x.txt");
  LinesOf(source);
  std::string_view line;
  EXPECT_FALSE(source.Next(line));
  EXPECT_TRUE(source.HasFailed());
}

TEST(LineSourceTest, ImmediateFailureYieldsNoLine) {
  ScriptedBuffer buffer({}, FailToRead);
  std::istream stream(&buffer);
  CLineSource source(stream, "x.txt");
  EXPECT_THAT(LinesOf(source), ElementsAre());
  EXPECT_TRUE(source.HasFailed());
}

TEST(LineSourceTest, FailureRightAfterALineFeedLosesNoWholeLine) {
  ScriptedBuffer buffer({"a\n", "b\n"}, FailToRead);
  std::istream stream(&buffer);
  CLineSource source(stream, "x.txt");
  EXPECT_THAT(LinesOf(source), ElementsAre("a", "b"));
  EXPECT_TRUE(source.HasFailed());
}

TEST(LineSourceTest, FailureIsQuietUnderMasksThatExcludeIt) {
  ScriptedBuffer buffer({"a\nb"}, FailToRead);
  std::istream stream(&buffer);
  stream.exceptions(std::ios::failbit | std::ios::eofbit);
  CLineSource source(stream, "x.txt");
  EXPECT_THAT(LinesOf(source), ElementsAre("a"));
  EXPECT_TRUE(source.HasFailed());
}

TEST(LineSourceTest, FailureThatTheMaskIncludesIsThrown) {
  ScriptedBuffer buffer({"a\nb"}, FailToRead);
  std::istream stream(&buffer);
  stream.exceptions(std::ios::badbit);
  CLineSource source(stream, "my %s file.txt");
  std::string_view line;
  ASSERT_TRUE(source.Next(line));
  EXPECT_EQ(line, "a");
  EXPECT_EQ(RunTimeErrorOf([&] { source.Next(line); }),
            "I/O read failure on Vendor Info File my %s file.txt: " + FailureText());
}

TEST(LineSourceTest, FailureAtTheEndOfTheStreamIsIgnored) {
  std::istream stream(nullptr);
  ScriptedBuffer buffer({"a\nb"}, [&] {
    stream.setstate(std::ios::eofbit);
    FailToRead();
  });
  stream.rdbuf(&buffer);
  stream.exceptions(std::ios::badbit);
  CLineSource source(stream, "x.txt");
  EXPECT_THAT(LinesOf(source), ElementsAre("a", "b"));
  EXPECT_FALSE(source.HasFailed());
}

TEST(LineSourceTest, BadStreamYieldsNoLine) {
  std::istringstream stream("a\nb");
  stream.setstate(std::ios::badbit);
  CLineSource source(stream, "x.txt");
  EXPECT_THAT(LinesOf(source), ElementsAre());
  EXPECT_TRUE(source.HasFailed());
}

TEST(LineSourceTest, BadStreamIsAFailureThatTheMaskMayInclude) {
  std::istringstream stream("a\nb");
  stream.setstate(std::ios::badbit);
  EXPECT_THROW(stream.exceptions(std::ios::failbit | std::ios::badbit), std::ios_base::failure);
  CLineSource source(stream, "x.txt");
  EXPECT_THAT(RunTimeErrorOf([&] { LinesOf(source); }),
              testing::StartsWith("I/O read failure on Vendor Info File x.txt: "));
}

TEST(LineSourceTest, OtherExceptionsOfTheStreamPass) {
  ScriptedBuffer buffer({"a\nb"}, [] { throw std::bad_alloc(); });
  std::istream stream(&buffer);
  stream.exceptions(std::ios::badbit);
  EXPECT_THROW(LinesOf(stream), std::bad_alloc);
}

/// Returns one character after another and never has one ready.
class UnbufferedBuffer : public std::streambuf {
 public:
  explicit UnbufferedBuffer(std::string content) : m_content(std::move(content)) {}

 protected:
  int_type underflow() override {
    return m_next < m_content.size() ? traits_type::to_int_type(m_content[m_next]) : traits_type::eof();
  }
  int_type uflow() override {
    const int_type character = underflow();
    ++m_next;
    return character;
  }

 private:
  std::string m_content;
  std::size_t m_next = 0;
};

TEST(LineSourceTest, StreamWithoutABufferIsReadToItsEnd) {
  UnbufferedBuffer buffer("one\ntwo");
  std::istream stream(&buffer);
  CLineSource source(stream, "a.txt");
  std::string_view line;
  ASSERT_TRUE(source.Next(line));
  EXPECT_EQ(line, "one");
  ASSERT_TRUE(source.Next(line));
  EXPECT_EQ(line, "two");
  EXPECT_FALSE(source.Next(line));
  EXPECT_FALSE(source.HasFailed());
}

}  // namespace

}  // namespace vif

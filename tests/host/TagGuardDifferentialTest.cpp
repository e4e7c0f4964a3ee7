// The guard of tags, held against a plain search for tags in whole documents.
#include "EncodedXml.h"
#include "msxml/TagGuard.h"
#include "support/Random.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>

namespace {

using testsupport::Encode;
using testsupport::kForms;
using testsupport::RandomBelow;

using Generator = std::mt19937_64;

/// The line of the first equals sign too many in a tag; 0 when there is none.
std::size_t LineOfTooMany(std::string_view xml) {
  const auto skip = [&](std::size_t from, std::string_view end) {
    return std::min(xml.find(end, from), xml.size() - end.size()) + end.size();
  };
  for (std::size_t at = xml.find('<'); at != std::string_view::npos; at = xml.find('<', at)) {
    if (xml.substr(at).starts_with("<!--")) {
      at = skip(at + 4, "-->");
    } else if (xml.substr(at).starts_with("<![CDATA[")) {
      at = skip(at + 9, "]]>");
    } else if (xml.substr(at).starts_with("<?")) {
      at = skip(at + 2, "?>");
    } else {
      std::size_t count = 0;
      for (; xml[at] != '>'; ++at) {
        if (xml[at] == '=' && ++count > msxml::kMostAttributes) {
          return 1 +
                 static_cast<std::size_t>(std::count(xml.begin(), xml.begin() + static_cast<std::ptrdiff_t>(at), '\n'));
        }
        if (xml[at] == '"' || xml[at] == '\'') at = xml.find(xml[at], at + 1);
      }
    }
  }
  return 0;
}

/// What the guard says of a document that comes in pieces: the line where it has tripped, or 0.
/// \param pieceLength gives the length of the next piece
template <typename Length>
std::size_t LineOfGuard(std::string_view bytes, const Length& pieceLength) {
  msxml::CTagGuard guard;
  while (!bytes.empty()) {
    const std::size_t length = std::min(pieceLength(), bytes.size());
    if (guard.Take(bytes.data(), length) == guard.HasTripped()) return std::string_view::npos;
    bytes.remove_prefix(length);
    if (guard.HasTripped()) return guard.Line();
  }
  return 0;
}

/// Writes documents with tags of many attributes, and much that looks like them.
class CTagWriter {
 public:
  explicit CTagWriter(Generator& generator) : m_generator(generator) {}

  std::string Document() {
    m_xml.clear();
    if (Below(3) == 0) m_xml += Any(kAsides);
    AppendTag();
    for (std::size_t i = Below(30); i > 0; --i) {
      switch (Below(6)) {
        case 0: m_xml += Any(kAsides); break;
        case 1: m_xml.append(Below(5000), "=x\n>'\""[Below(6)]); break;
        case 2: AppendSigns(); break;
        case 3: m_xml.append("</").append(Below(5), 'n').append("n>"); break;
        default: AppendTag();
      }
    }
    return m_xml;
  }

 private:
  static constexpr std::array kAsides = {"<!---->",
                                         "<!--><x a='-->",
                                         "<!---><x a='-->",
                                         "<!-- - -- ' = -->",
                                         "<?p <x a='>?>",
                                         "<?p?\?>",
                                         "<?p?>",
                                         "<![CDATA[]]>",
                                         "\r\n",
                                         "&lt;a b='1'&gt;",
                                         "\u20AC=\U0001F600",
                                         "<![CDATA[]]]]>",
                                         "<![CDATA[ <x a='>' ]>]]>",
                                         "<!--\n<x\r\n=\n-->"};

  std::size_t Below(std::size_t bound) { return RandomBelow(m_generator, bound); }

  template <std::size_t count>
  const char* Any(const std::array<const char*, count>& texts) {
    return texts[Below(count)];
  }

  /// Something that would be a tag with too many attributes, were it a tag.
  void AppendSigns() {
    constexpr std::array openings = {"<!--", "<!-- <x ", "<![CDATA[<x ", "<?p <x "};
    constexpr std::array closings = {"-->", "-->", "]]>", "?>"};
    const std::size_t which = Below(openings.size());
    m_xml.append(openings[which]).append(Below(3000), '=').append(closings[which]);
  }

  /// Mostly with few attributes, sometimes with as many as there may be, or nearly, or more.
  void AppendTag() {
    constexpr std::array values = {"''", "'1'", "\"\"", "\">'=\"", "'=\n/>\"'", "'\u20AC\u2022'"};
    constexpr std::array blanks = {" ", "\n", "\r\n", "\t "};
    const std::size_t count = Below(8) == 0 ? 995 + Below(13) : Below(6);
    m_xml += "<n";
    for (std::size_t i = 0; i < count; ++i) {
      m_xml.append(Any(blanks)).append("a").append(Below(8) == 0 ? " = " : "=").append(Any(values));
    }
    m_xml += Below(2) == 0 ? "/>" : ">";
  }

  Generator& m_generator;
  std::string m_xml;
};

/// Its lines are those of the characters, whatever the bytes are.
std::string InAnyForm(Generator& generator, const std::string& xml) {
  return Encode(xml, kForms[RandomBelow(generator, kForms.size())]);
}

class TagGuardDifferentialTest : public testing::Test {
 protected:
  testing::ScopedTrace m_trace{__FILE__, __LINE__, testsupport::SeedMessage()};
  Generator m_generator = testsupport::SeededGenerator();
};

TEST_F(TagGuardDifferentialTest, TripsWhereThePlainSearchFindsTooMany) {
  CTagWriter writer(m_generator);
  std::size_t trippedCount = 0;
  for (int i = 0; i < 400; ++i) {
    const std::string xml = writer.Document();
    const std::size_t expected = LineOfTooMany(xml);
    const std::size_t most = 1 + RandomBelow(m_generator, 6000);
    const auto anyLength = [&] { return 1 + RandomBelow(m_generator, most); };
    ASSERT_EQ(LineOfGuard(InAnyForm(m_generator, xml), anyLength), expected) << xml;
    if (expected != 0) ++trippedCount;
  }
  EXPECT_GT(trippedCount, 40U);
  EXPECT_LT(trippedCount, 360U);
}

TEST_F(TagGuardDifferentialTest, PiecesOfEveryShortLengthMakeNoDifference) {
  CTagWriter writer(m_generator);
  for (int i = 0; i < 40; ++i) {
    const std::string xml = writer.Document();
    const std::size_t expected = LineOfTooMany(xml);
    const std::string bytes = InAnyForm(m_generator, xml);
    for (std::size_t length = 1; length < 10; ++length) {
      ASSERT_EQ(LineOfGuard(bytes, [length] { return length; }), expected) << length << " of " << xml;
    }
  }
}

/// A tag of so many attributes, from the offset on.
std::string TagAt(std::size_t offset, std::size_t attributeCount) {
  std::string xml = "<a>" + std::string(offset - 3, 'x') + "<b";
  for (std::size_t i = 0; i < attributeCount; ++i) xml += " a=''";
  return xml + "/></a>";
}

TEST_F(TagGuardDifferentialTest, TagsAreCountedWhereverTheyStandInAPiece) {
  for (std::size_t offset = 3; offset<4100; offset += offset> 3900 ? 1 : 37) {
    const auto pieceLength = [] { return std::size_t{4000}; };
    ASSERT_EQ(LineOfGuard(TagAt(offset, 1001), pieceLength), 1U) << offset;
    ASSERT_EQ(LineOfGuard(TagAt(offset, 1000), pieceLength), 0U) << offset;
  }
}

TEST_F(TagGuardDifferentialTest, EqualsSignsSideBySideAreCountedToo) {
  for (std::size_t count = 990; count < 1010; ++count) {
    const std::string xml = "<a><b" + std::string(count, '=') + "><c/></a>";
    const std::size_t expected = count > msxml::kMostAttributes ? 1 : 0;
    for (const std::size_t length : {std::size_t{1}, std::size_t{500}, std::size_t{1000}, std::size_t{4000}}) {
      ASSERT_EQ(LineOfGuard(xml, [length] { return length; }), expected) << count;
    }
  }
}

TEST_F(TagGuardDifferentialTest, TagThatBeginsInsideAnotherIsCountedAnew) {
  const std::string signs(600, '=');
  const auto pieceLength = [] { return std::size_t{1}; };
  EXPECT_EQ(LineOfGuard("<a " + signs + "<b " + signs + "/>", pieceLength), 0U);
  EXPECT_EQ(LineOfGuard("<a " + signs + "<b " + signs + signs + "/>", pieceLength), 1U);
}

TEST_F(TagGuardDifferentialTest, HalfAByteOrderMarkIsNone) {
  for (const std::string_view begin : {"\xFF<", "\xFE<", "\xFF\xFF", "\xFE\xFE"}) {
    msxml::CTagGuard guard;
    EXPECT_TRUE(guard.Take(begin.data(), begin.size()));
    EXPECT_FALSE(guard.IsUtf16());
  }
}

TEST_F(TagGuardDifferentialTest, TakesNothingMoreOnceItHasTripped) {
  msxml::CTagGuard guard;
  const std::string xml = TagAt(3, 1001);
  EXPECT_FALSE(guard.Take(xml.data(), xml.size()));
  EXPECT_FALSE(guard.Take("\n<a/>", 5));
  EXPECT_TRUE(guard.HasTripped());
  EXPECT_EQ(guard.Line(), 1U);
}

}  // namespace

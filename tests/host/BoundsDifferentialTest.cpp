// The check of a file's bounds, compared with a plain search for tags.
#include "EncodedXml.h"
#include "support/Random.h"
#include "support/TempDir.h"
#include "xmlfile/Bounds.h"
#include "xmlfile/Limits.h"

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

/// The line where the first tag with too many equals signs begins; 0 if there is none.
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
      const std::size_t begin = at;
      for (; xml[at] != '>'; ++at) {
        if (xml[at] == '=' && ++count > xmlfile::kMostAttributes) {
          return 1 + static_cast<std::size_t>(
                         std::count(xml.begin(), xml.begin() + static_cast<std::ptrdiff_t>(begin), '\n'));
        }
        if (xml[at] == '"' || xml[at] == '\'') at = xml.find(xml[at], at + 1);
      }
    }
  }
  return 0;
}

/// Writes documents with tags of many attributes, and much that looks like such tags.
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

  /// Something that would be a tag with too many attributes if it were a tag.
  void AppendSigns() {
    constexpr std::array openings = {"<!--", "<!-- <x ", "<![CDATA[<x ", "<?p <x "};
    constexpr std::array closings = {"-->", "-->", "]]>", "?>"};
    const std::size_t which = Below(openings.size());
    m_xml.append(openings[which]).append(Below(3000), '=').append(closings[which]);
  }

  /// Mostly with few attributes, sometimes with about as many as are allowed, or more.
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

/// The lines are counted in characters, whatever the bytes are.
std::string InAnyForm(Generator& generator, const std::string& xml) {
  return Encode(xml, kForms[RandomBelow(generator, kForms.size())]);
}

class BoundsDifferentialTest : public testing::Test {
 protected:
  /// The line where a file exceeds the limit on attributes; 0 if it does not.
  std::size_t LineOfBounds(const std::string& bytes) const {
    xmlfile::CProblems problems;
    const auto file = xmlfile::ReadFileText(m_dir.Write("x.xml", bytes), problems);
    if (!file) return std::string::npos;
    const xmlfile::Bounds bounds = xmlfile::CheckBounds(*file);
    if (!bounds.problem) return 0;
    return bounds.problem->reason == xmlfile::TooManyAttributesReason() ? bounds.problem->line : std::string::npos;
  }

  testing::ScopedTrace m_trace{__FILE__, __LINE__, testsupport::SeedMessage()};
  Generator m_generator = testsupport::SeededGenerator();
  testsupport::TempDir m_dir;
};

TEST_F(BoundsDifferentialTest, RefusesWhereThePlainSearchFindsTooMany) {
  CTagWriter writer(m_generator);
  std::size_t refusedCount = 0;
  for (int i = 0; i < 400; ++i) {
    const std::string xml = writer.Document();
    const std::size_t expected = LineOfTooMany(xml);
    ASSERT_EQ(LineOfBounds(InAnyForm(m_generator, xml)), expected) << xml;
    if (expected != 0) ++refusedCount;
  }
  EXPECT_GT(refusedCount, 40U);
  EXPECT_LT(refusedCount, 360U);
}

TEST_F(BoundsDifferentialTest, AdjacentEqualsSignsAreCountedToo) {
  for (std::size_t count = 990; count < 1010; ++count) {
    const std::string xml = "<a><b" + std::string(count, '=') + "><c/></a>";
    ASSERT_EQ(LineOfBounds(xml), count > xmlfile::kMostAttributes ? 1U : 0U) << count;
  }
}

TEST_F(BoundsDifferentialTest, NothingIsReportedAfterATagInATag) {
  const std::string signs(600, '=');
  EXPECT_EQ(LineOfBounds("<a " + signs + "<b " + signs + signs + "/>"), 0U);
  EXPECT_EQ(LineOfBounds("<a b='<c " + signs + signs + "'/>"), 0U);
}

TEST_F(BoundsDifferentialTest, HalfAByteOrderMarkIsNotAMark) {
  for (const std::string begin : {"\xFF<", "\xFE<", "\xFF\xFF", "\xFE\xFE"}) {
    xmlfile::CProblems problems;
    const auto file = xmlfile::ReadFileText(m_dir.Write("x.xml", begin), problems);
    ASSERT_TRUE(file);
    EXPECT_TRUE(file->decoded.empty());
  }
}

}  // namespace

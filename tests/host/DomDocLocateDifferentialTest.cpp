// Places of elements in generated documents, compared with those that the generator counted.
#include "support/Random.h"
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <random>
#include <string>
#include <string_view>
#include <vector>

namespace {

using testsupport::CTextDocument;
using testsupport::RandomBelow;

/// Where a start tag was written.
struct WrittenTag {
  std::size_t line;
  std::size_t column;
};

/// Writes a document and counts lines and characters as it goes.
class CDocumentWriter {
 public:
  explicit CDocumentWriter(std::mt19937_64& generator) : m_generator(generator) {}

  void WriteElement(int depth) {
    m_tags.push_back({m_line, m_column});
    const std::string name = Any(kNames);
    Write("<" + name);
    const std::size_t attributeCount = RandomBelow(m_generator, 3);
    for (std::size_t i = 0; i < attributeCount; ++i) {
      Write(std::string(Any(kBlanks)) + "a" + std::to_string(i) + "='" + Any(kValues) + "'");
    }
    if (RandomBelow(m_generator, 3) == 0) Write(Any(kBlanks));
    const std::size_t childCount = depth > 0 ? RandomBelow(m_generator, 8) : 0;
    if (childCount == 0 && RandomBelow(m_generator, 2) == 0) return Write("/>");
    Write(">");
    for (std::size_t i = 0; i < childCount; ++i) {
      if (RandomBelow(m_generator, 2) == 0) Write(Any(kContents));
      if (RandomBelow(m_generator, 500) == 0) Write(std::string(70'000, 'x'));
      WriteElement(depth - 1);
    }
    Write("</" + name + ">");
  }

  void Write(std::string_view text) {
    m_xml += text;
    for (const char c : text) {
      if (c == '\n') {
        ++m_line;
        m_column = 1;
      } else if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) {
        ++m_column;
      }
    }
  }

  const std::string& Xml() const { return m_xml; }
  const std::vector<WrittenTag>& Tags() const { return m_tags; }

 private:
  static constexpr std::array kNames = {"a", "bb", "p-1.x"};
  static constexpr std::array kBlanks = {" ", "\n", "\r\n", "\t ", " \n\n "};
  static constexpr std::array kValues = {"",       "x",          "\u20AC",        "a\nb",
                                         "a\r\nb", "&lt;&#10;>", "\U0001F600 \"", "&#x1F600;"};
  static constexpr std::array kContents = {"\n",
                                           "\r\n  ",
                                           "text",
                                           "\t\u00E4\U0001F600",
                                           "&amp;&#228;",
                                           "<!-- <a>\n\u00E4 -->",
                                           "<?p <a>\r\n?>",
                                           "<![CDATA[<a>\n\u20AC]]>",
                                           "]]\n&gt;",
                                           "<!---->"};

  template <std::size_t count>
  const char* Any(const std::array<const char*, count>& texts) {
    return texts[RandomBelow(m_generator, count)];
  }

  std::mt19937_64& m_generator;
  std::string m_xml;
  std::size_t m_line = 1;
  std::size_t m_column = 1;
  std::vector<WrittenTag> m_tags;
};

bool IsPlaceOf(const WrittenTag& tag, std::size_t line, std::size_t column) {
  return line == tag.line && column == tag.column;
}

TEST(DomDocLocateDifferentialTest, ElementsAreFoundWhereTheyWereWritten) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  std::size_t count = 0;
  for (int i = 0; i < 60; ++i) {
    CDocumentWriter writer(generator);
    writer.Write("<root>");
    for (int j = 0; j < 3; ++j) writer.WriteElement(3);
    writer.Write("</root>");
    CTextDocument document(writer.Xml());
    const std::vector<DOMNodePtr> elements = testsupport::Select(document.Root(), L".//*");
    ASSERT_EQ(elements.size(), writer.Tags().size());
    for (std::size_t j = 0; j < elements.size(); ++j) {
      const WrittenTag& tag = writer.Tags()[j];
      std::size_t line = 0;
      std::size_t column = 0;
      ASSERT_TRUE(document.Locate(*elements[j], line, column));
      ASSERT_TRUE(IsPlaceOf(tag, line, column)) << "element " << j << " is said to stand at " << line << ":" << column
                                                << ", not " << tag.line << ":" << tag.column;
    }
    count += elements.size();
  }
  EXPECT_GT(count, 1000U);
}

}  // namespace

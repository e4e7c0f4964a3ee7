// The limit on attributes, wherever the tag is in a file.
#include "EncodedXml.h"
#include "TestUtilities/DOMDoc.h"
#include "support/Random.h"
#include "support/TempDir.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <random>
#include <string>

namespace {

using testsupport::EForm;
using testsupport::Encode;
using testsupport::RandomBelow;

constexpr std::array kForms = {EForm::Utf8, EForm::Utf8WithMark, EForm::Utf16Little, EForm::Utf16Big};

constexpr std::array kAsides = {"<!-- <x a='>'> = -->", "<![CDATA[ <x a='>' = ]>]]>", "<?p <x a='>' = ?>", "\r\n", "\n",
                                "<b a='>=' c=\"='\"/>", "=&lt;&#61;\u20AC",           "<!---->",           "x"};

/// A random document around a tag with that many attributes, which is on a line of its own.
std::string DocumentWith(std::mt19937_64& generator, std::size_t attributeCount) {
  std::string xml = "<a>";
  for (std::size_t i = RandomBelow(generator, 30); i > 0; --i) {
    xml += kAsides[RandomBelow(generator, kAsides.size())];
    if (RandomBelow(generator, 8) == 0) xml.append(RandomBelow(generator, 5000), '=');
  }
  xml += "<b";
  for (std::size_t i = 0; i < attributeCount; ++i) xml.append(" a").append(std::to_string(i)).append("='='");
  return xml + "/>\n<c/></a>";
}

std::size_t CountLines(const std::string& xml, std::size_t end) {
  return 1 + static_cast<std::size_t>(std::count(xml.begin(), xml.begin() + static_cast<std::ptrdiff_t>(end), '\n'));
}

TEST(DomDocTagBoundsTest, TagsOfAThousandAttributesAreReadWhereverTheyStand) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  const testsupport::TempDir dir;
  for (int i = 0; i < 40; ++i) {
    const std::string xml = DocumentWith(generator, 1000);
    CDOMDoc doc({});
    ASSERT_TRUE(doc.ValidateDoc(dir.Write("x.xml", Encode(xml, kForms[RandomBelow(generator, kForms.size())])))) << xml;
  }
}

TEST(DomDocTagBoundsTest, TagsOfMoreAttributesAreRefusedWithTheirLineWhereverTheyStand) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  const testsupport::TempDir dir;
  for (int i = 0; i < 80; ++i) {
    const std::string xml = DocumentWith(generator, 1001);
    CDOMDoc doc({});
    ASSERT_FALSE(doc.ValidateDoc(dir.Write("x.xml", Encode(xml, kForms[RandomBelow(generator, kForms.size())]))))
        << xml;
    ASSERT_EQ(doc.Problems().size(), 1U);
    ASSERT_EQ(doc.Problems()[0].reason, "An element has more than 1000 attributes.");
    ASSERT_EQ(doc.Problems()[0].line, CountLines(xml, xml.rfind("<b a0"))) << xml;
  }
}

}  // namespace

// The places of elements in their files.
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <string>
#include <string_view>
#include <vector>

namespace {

using testsupport::CPlainDocument;
using testsupport::CTextDocument;
using testsupport::PlaceOf;
using testsupport::Select;
using testsupport::SelectOne;
using testsupport::TempDir;

/// The place of the element `b` in a document.
std::string PlaceOfB(std::string_view xml) {
  CTextDocument document(xml);
  return PlaceOf(document, *SelectOne(document.Root(), L"//b"));
}

/// ASCII text as UTF-16 with a byte order mark.
std::string Utf16(std::string_view text, bool isBigEndian) {
  std::string bytes = isBigEndian ? "\xFE\xFF" : "\xFF\xFE";
  for (const char c : text) bytes += isBigEndian ? std::string{'\0', c} : std::string{c, '\0'};
  return bytes;
}

TEST(DomDocLocateTest, RootAtTheBeginning) {
  CTextDocument document("<a/>");
  EXPECT_EQ(PlaceOf(document, document.Root()), "1:1");
}

TEST(DomDocLocateTest, RootAfterTheDeclaration) {
  CTextDocument document("<?xml version='1.0'?>\n<!-- c -->\n  <a/>");
  EXPECT_EQ(PlaceOf(document, document.Root()), "3:3");
}

TEST(DomDocLocateTest, ElementsOnOneLine) {
  CTextDocument document("<a><b/><b>x</b> <b/></a>");
  std::string places;
  for (const DOMNodePtr& b : Select(document.Root(), L"b")) places += PlaceOf(document, *b) + " ";
  EXPECT_EQ(places, "1:4 1:8 1:17 ");
}

TEST(DomDocLocateTest, ElementsOnLines) { EXPECT_EQ(PlaceOfB("<a>\n  <x/>\n    <b/>\n</a>"), "3:5"); }

TEST(DomDocLocateTest, AttributesDoNotMoveTheBeginning) {
  EXPECT_EQ(PlaceOfB("<a> <b value='1' other=\"&lt;&#10;&gt;>\"  >x</b></a>"), "1:5");
}

TEST(DomDocLocateTest, TagOfManyLinesIsLocatedAtItsBeginning) {
  EXPECT_EQ(PlaceOfB("<a>\n  <b\n  x='1'\n  y='2\n3'\n/></a>"), "2:3");
}

TEST(DomDocLocateTest, TagOfManyLinesOnTheFirstLine) { EXPECT_EQ(PlaceOfB("<a> <b\nx='1'/></a>"), "1:5"); }

TEST(DomDocLocateTest, ElementAfterATagOfManyLines) { EXPECT_EQ(PlaceOfB("<a\n\nx='1'> <b/></a>"), "3:8"); }

TEST(DomDocLocateTest, TabIsOneCharacter) { EXPECT_EQ(PlaceOfB("<a>\n\t\t<b/></a>"), "2:3"); }

TEST(DomDocLocateTest, CrLfEndsOneLine) { EXPECT_EQ(PlaceOfB("<a>\r\n<x/>\r\n  <b/>\r\n</a>"), "3:3"); }

TEST(DomDocLocateTest, CrLfInsideTags) { EXPECT_EQ(PlaceOfB("<a\r\n x='1\r\n'\r\n> <b\r\n/></a>"), "4:3"); }

TEST(DomDocLocateTest, CharactersOfManyBytesAreOneEach) {
  EXPECT_EQ(PlaceOfB("<a>\u00E4\u20AC\U0001F600<b/></a>"), "1:7");
  EXPECT_EQ(PlaceOfB("<a \u00E4='\u20AC'><b/></a>"), "1:10");
  EXPECT_EQ(PlaceOfB("<a><!--\u00E4--><?p \u00E4?><![CDATA[\u00E4]]><b/></a>"), "1:32");
  EXPECT_EQ(PlaceOfB("<a>\u00E4\n\u00E4 <b\n\u00E4='\u00E4'/></a>"), "2:3");
}

TEST(DomDocLocateTest, ReferencesCountAsTheyAreWritten) { EXPECT_EQ(PlaceOfB("<a>&#xE4;&amp;<b/></a>"), "1:15"); }

TEST(DomDocLocateTest, AfterCommentsCDataAndInstructions) {
  EXPECT_EQ(PlaceOfB("<a><!-- <c>\n\n --><b/></a>"), "3:5");
  EXPECT_EQ(PlaceOfB("<a><![CDATA[ <b>\n]] ]]><b/></a>"), "2:7");
  EXPECT_EQ(PlaceOfB("<a><?p <b>\n\n?><b/></a>"), "3:3");
}

TEST(DomDocLocateTest, ByteOrderMarkIsNotACharacter) { EXPECT_EQ(PlaceOfB("\xEF\xBB\xBF<a><b/></a>"), "1:4"); }

TEST(DomDocLocateTest, Utf16) {
  const std::string xml = "<a>\n\n <x/><b\nx='1'/></a>";
  EXPECT_EQ(PlaceOfB(Utf16(xml, false)), "3:6");
  EXPECT_EQ(PlaceOfB(Utf16(xml, true)), "3:6");
}

TEST(DomDocLocateTest, ByteOrderMarkOverrulesADeclarationOfUtf8) {
  for (const bool isBigEndian : {false, true}) {
    EXPECT_EQ(PlaceOfB(Utf16("<?xml version='1.0' encoding='utf-8' ?><a>\n <b/></a>", isBigEndian)), "2:2");
  }
}

TEST(DomDocLocateTest, Utf8MayBeDeclaredWithoutAHyphen) {
  EXPECT_EQ(PlaceOfB("<?xml version='1.0' encoding='utf8'?>\n<a>\u00E4<b/></a>"), "2:5");
}

TEST(DomDocLocateTest, Latin1) {
  EXPECT_EQ(PlaceOfB("<?xml version='1.0' encoding='ISO-8859-1'?>\n<a>\xE4\xF6<b/></a>"), "2:6");
}

TEST(DomDocLocateTest, AfterMuchText) {
  EXPECT_EQ(PlaceOfB("<a>\n" + std::string(300'000, 'x') + "<b/></a>"), "2:300001");
  EXPECT_EQ(PlaceOfB("<a>\n" + std::string(300'000, 'x') + "\n<b/></a>"), "3:1");
}

TEST(DomDocLocateTest, AfterAMegabyteOfAttribute) {
  EXPECT_EQ(PlaceOfB("<a x='" + std::string(1'000'000, 'x') + "'>\n <b y='" + std::string(1'000'000, 'y') + "'/></a>"),
            "2:2");
}

TEST(DomDocLocateTest, AfterManyElementsOnOneLine) {
  std::string xml = "<a>";
  for (int i = 0; i < 50'000; ++i) xml += "<x/>";
  EXPECT_EQ(PlaceOfB(xml + "<b/></a>"), "1:200004");
}

TEST(DomDocLocateTest, LinesBeyond65535) {
  EXPECT_EQ(PlaceOfB("<a>" + std::string(65'534, '\n') + "<b/></a>"), "65535:1");
  EXPECT_EQ(PlaceOfB("<a>" + std::string(65'535, '\n') + "<b/></a>"), "65536:1");
  EXPECT_EQ(PlaceOfB("<a>" + std::string(200'000, '\n') + "  <b/></a>"), "200001:3");
}

TEST(DomDocLocateTest, ColumnOfATagOfManyLinesFarIntoItsLine) {
  EXPECT_EQ(PlaceOfB("<a>\n" + std::string(300'000, 'x') + "<b\n/></a>"), "2:300001");
}

TEST(DomDocLocateTest, ElementsMayBeLocatedInAnyOrder) {
  CTextDocument document("<a>\n<b/><b><c/>\n<c/></b>\n<b><c/></b></a>");
  const std::vector<DOMNodePtr> nodes = Select(document.Root(), L"//*");
  constexpr const char* places[] = {"1:1", "2:1", "2:5", "2:8", "3:1", "4:1", "4:4"};
  ASSERT_EQ(nodes.size(), std::size(places));
  for (const std::size_t number : {6U, 0U, 3U, 1U, 5U, 4U, 4U, 2U, 6U, 3U}) {
    EXPECT_EQ(PlaceOf(document, *nodes[number]), places[number]);
  }
}

TEST(DomDocLocateTest, ElementsThatLookAlikeAreToldApartAndStayUnchanged) {
  // Some implementations set this attribute temporarily.
  CTextDocument document("<a>\n<b element-mark='marked'/>\n<b element-mark='marked otherwise'/>\n<b/></a>");
  std::string places;
  for (const DOMNodePtr& b : Select(document.Root(), L"b")) places += PlaceOf(document, *b) + " ";
  EXPECT_EQ(places, "2:1 3:1 4:1 ");
  EXPECT_EQ(testsupport::Texts(Select(document.Root(), L"//@*")),
            (std::vector<std::string>{"marked", "marked otherwise"}));
}

TEST(DomDocLocateTest, ManySiblingsAreFoundQuickly) {
  std::string xml = "<a>";
  for (int i = 0; i < 50'000; ++i) xml += "<b/>\n";
  CTextDocument document(xml + "</a>");
  const std::vector<DOMNodePtr> nodes = Select(document.Root(), L"b");
  ASSERT_EQ(nodes.size(), 50'000U);
  std::size_t line = 1;
  for (const DOMNodePtr& node : nodes) {
    ASSERT_EQ(PlaceOf(document, *node), std::to_string(line) + (line == 1 ? ":4" : ":1"));
    ++line;
  }
}

TEST(DomDocLocateTest, AttributeHasThePlaceOfItsElement) {
  CTextDocument document("<a>\n <b x='1'/></a>");
  EXPECT_EQ(PlaceOf(document, *SelectOne(document.Root(), L"b/@x")), "2:2");
}

TEST(DomDocLocateTest, DocumentHasNoPlace) {
  CTextDocument document("<a/>");
  EXPECT_EQ(PlaceOf(document, document.Document()), "nowhere");
  EXPECT_EQ(PlaceOf(document, *SelectOne(document.Root(), L"/")), "nowhere");
}

TEST(DomDocLocateTest, NodeOfAnotherDocumentHasNoPlace) {
  CTextDocument document("<a/>");
  CTextDocument other("<a/>");
  std::size_t line = 7;
  std::size_t column = 7;
  EXPECT_FALSE(document.Locate(other.Root(), line, column));
  EXPECT_EQ(line, 0U);
  EXPECT_EQ(column, 0U);
}

TEST(DomDocLocateTest, NodeOfTheFormerContentHasNoPlace) {
  const TempDir dir;
  const auto file = dir.Write("x.xml", "<a/>");
  CPlainDocument document;
  ASSERT_TRUE(document.ValidateDoc(file));
  const DOMElementPtr former = document.GetRootElement();
  ASSERT_TRUE(document.ValidateDoc(file));
  EXPECT_EQ(PlaceOf(document, *former), "nowhere");
  EXPECT_FALSE(document.ValidateDoc(dir.Path()));
  EXPECT_EQ(PlaceOf(document, *former), "nowhere");
}

}  // namespace

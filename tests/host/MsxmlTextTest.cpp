// The text of elements.
#include "msxml/ComTypes.h"
#include "support/Random.h"
#include "support/XmlDocument.h"

#include <gtest/gtest.h>

#include <cstddef>
#include <iterator>
#include <random>
#include <string>

namespace {

using testsupport::CTextDocument;
using testsupport::SelectOne;
using testsupport::Text;

std::string RootText(const std::string& xml) {
  CTextDocument document(xml);
  return Text(document.Root());
}

TEST(MsxmlTextTest, WhiteSpaceAtBothEndsIsRemoved) { EXPECT_EQ(RootText("<a> \t\r\n x  y \n</a>"), "x  y"); }

TEST(MsxmlTextTest, WhiteSpaceStaysWhereItIsPreserved) {
  EXPECT_EQ(RootText("<a xml:space=\"preserve\">  x \n </a>"), "  x \n ");
}

TEST(MsxmlTextTest, NoOtherAttributePreserves) {
  EXPECT_EQ(RootText("<a space='preserve' xml:lang='preserve' q:space='preserve' xmlns:q='urn:q'> x </a>"), "x");
}

TEST(MsxmlTextTest, PreservingEndsWhereDefaultIsInForceAgain) {
  CTextDocument document("<a xml:space='preserve'><b xml:space='default'> x </b></a>");
  EXPECT_EQ(Text(*SelectOne(document.Root(), L"b")), "x");
}

TEST(MsxmlTextTest, PreservingOfAnAncestorIsInForce) {
  CTextDocument document("<a xml:space='preserve'><b><c> x </c></b></a>");
  EXPECT_EQ(Text(*SelectOne(document.Root(), L"b/c")), " x ");
}

TEST(MsxmlTextTest, CommentsAndProcessingInstructionsAreLeftOut) {
  EXPECT_EQ(RootText("<a>p<!--q-->r<?s t?>u</a>"), "pru");
}

TEST(MsxmlTextTest, TextOfDescendantsIsJoinedInOrder) {
  EXPECT_EQ(RootText("<a>1<b>2<c>3</c>4</b>5<d>6</d></a>"), "123456");
}

TEST(MsxmlTextTest, WhiteSpaceBetweenElementsIsOneBlank) {
  EXPECT_EQ(RootText("<a>\n  <b>x</b>\n  <b>y</b>\n</a>"), "x y");
}

TEST(MsxmlTextTest, WhiteSpaceOfACDataSectionStays) { EXPECT_EQ(RootText("<a>  <![CDATA[ c ]]>  </a>"), " c "); }

TEST(MsxmlTextTest, OnlySpaceTabCrAndLfAreWhiteSpace) {
  EXPECT_EQ(RootText("<a>&#32;&#9;&#13;&#10;&#160;x&#160; </a>"), "\u00A0x\u00A0");
}

TEST(MsxmlTextTest, LineEndsAreLineFeeds) { EXPECT_EQ(RootText("<a>1\r\n2\r3\n4</a>"), "1\n2\n3\n4"); }

TEST(MsxmlTextTest, PredefinedEntitiesAndCharacterReferencesAreCharacters) {
  EXPECT_EQ(RootText("<a>&lt;&amp;&gt;&quot;&apos;&#x41;&#8486;&#x1F600;</a>"), "<&>\"'A\u2126\U0001F600");
}

TEST(MsxmlTextTest, ElementWithoutContentHasAnEmptyText) {
  EXPECT_EQ(RootText("<a/>"), "");
  EXPECT_EQ(RootText("<a></a>"), "");
  EXPECT_EQ(RootText("<a>   </a>"), "");
}

TEST(MsxmlTextTest, EmptyTextIsABstrAndNotNull) {
  CTextDocument document("<a/>");
  CBstr text;
  ASSERT_EQ(document.Root().get_text(text.Receive()), S_OK);
  EXPECT_NE(text.get(), nullptr);
  EXPECT_EQ(SysStringLen(text.get()), 0U);
}

TEST(MsxmlTextTest, TextOfAnAttributeIsItsValueUntouched) {
  CTextDocument document("<a value='  5  6 '/>");
  EXPECT_EQ(Text(*SelectOne(document.Root(), L"@value")), "  5  6 ");
}

TEST(MsxmlTextTest, DocumentHasTheTextOfItsRoot) {
  CTextDocument document("<!--c--><a> x <b>y</b></a>");
  EXPECT_EQ(Text(document.Document()), "x y");
  EXPECT_EQ(Text(*SelectOne(document.Root(), L"/")), "x y");
}

TEST(MsxmlTextTest, LongTextsAreWhole) {
  const std::string half(500'000, 'x');
  EXPECT_EQ(RootText("<a>" + half + " " + half + "</a>"), half + " " + half);
}

TEST(MsxmlTextTest, TextAloneIsTheSameAsBesideAComment) {
  SCOPED_TRACE(testsupport::SeedMessage());
  std::mt19937_64 generator = testsupport::SeededGenerator();
  constexpr const char* pieces[] = {" ", "\t", "\n", "x", "y z", "\u00A0", "\u00E4"};
  for (const std::string tag : {"a", "a xml:space='preserve'", "a xml:space='default'"}) {
    for (int i = 0; i < 100; ++i) {
      std::string text;
      for (std::size_t count = testsupport::RandomBelow(generator, 6); count > 0; --count) {
        text += pieces[testsupport::RandomBelow(generator, std::size(pieces))];
      }
      ASSERT_EQ(RootText("<" + tag + ">" + text + "</a>"), RootText("<" + tag + ">" + text + "<!--c--></a>")) << text;
    }
  }
}

struct TextCase {
  const char* xml;
  const char* text;     // of the root
  const char* textOfB;  // of the first `b` below it; null if there is none
};

// The expected texts are what MSXML's DOMDocument60, as implemented by Wine, returns for these documents.
constexpr TextCase kTextCases[] = {
    // clang-format off
    {"<a>  x  y \n</a>", "x  y", nullptr},
    {"<a xml:space=\"preserve\">  x </a>", "  x ", nullptr},
    {"<a>p<!--q-->r</a>", "pr", nullptr},
    {"<a>p <!--q--> r</a>", "p  r", nullptr},
    {"<a>   </a>", "", nullptr},
    {"<a> m <b> 1 </b> n </a>", "m  1  n", "1"},
    {"<a>  <![CDATA[ c ]]>  </a>", " c ", nullptr},
    {"<a>&#32;x&#160;</a>", "x\u00A0", nullptr},
    {"<a><b>x</b> <b>y</b></a>", "x y", "x"},
    {"<a><b>x</b>\n  <b>y</b></a>", "x y", "x"},
    {"<a> <b> </b> </a>", "", ""},
    {"<a><b xml:space=\"preserve\"> x </b></a>", "x", " x "},
    {"<a> <b xml:space=\"preserve\"> </b> </a>", "", " "},
    {"<a xml:space=\"preserve\"> <b xml:space=\"default\"> x </b> </a>", "  x  ", "x"},
    {"<a><![CDATA[]]> x </a>", " x", nullptr},
    {"<a> x <![CDATA[]]></a>", "x ", nullptr},
    {"<a> x <![CDATA[ y ]]> z </a>", "x  y  z", nullptr},
    {"<a> x <?pi data?> y </a>", "x  y", nullptr},
    {"<a> <!--c--> x <!--d--> </a>", "x", nullptr},
    {"<a>x <!--c--></a>", "x", nullptr},
    {"<a><!--c--> x</a>", "x", nullptr},
    {"<a>x<b> </b>y</a>", "x y", ""},
    {"<a>x<b/>y</a>", "xy", ""},
    {"<a> x<b/> </a>", "x", ""},
    {"<a><b> x</b></a>", "x", "x"},
    {"<a><b>x </b></a>", "x", "x"},
    {"<a><b>x </b> </a>", "x", "x"},
    {"<a> <b>x </b></a>", "x", "x"},
    {"<a><b> x </b><b> y </b></a>", "x  y", "x"},
    {"<a>&#9;x&#10;</a>", "x", nullptr},
    {"<a>&#13;x&#13;</a>", "x", nullptr},
    {"<a>x\r\ny</a>", "x\ny", nullptr},
    {"<a>x\ry</a>", "x\ny", nullptr},
    {"<a xml:space=\"preserve\">  </a>", "  ", nullptr},
    {"<a xml:space=\"preserve\"> <b> </b> </a>", "   ", " "},
    {"<a>&#32;</a>", "", nullptr},
    {"<a> &#32; </a>", "", nullptr},
    {"<a>&#x2003;x&#x2003;</a>", "\u2003x\u2003", nullptr},
    {"<a>&#133;x&#xFEFF;</a>", "\xC2\x85""x\uFEFF", nullptr},
    {"<a>\r\n x \r\n</a>", "x", nullptr},
    {"<a>&amp; x &lt;</a>", "& x <", nullptr},
    {"<a> &amp; </a>", "&", nullptr},
    {"<a><b>  <![CDATA[ c ]]>  </b></a>", " c ", " c "},
    {"<a>  <b><![CDATA[ c ]]></b>  </a>", " c ", " c "},
    {"<a><b> x <![CDATA[ c ]]> y </b> <b> </b></a>", "x  c  y", "x  c  y"},
    {"<a>x <![CDATA[ ]]></a>", "x  ", nullptr},
    {"<a> <![CDATA[ ]]> <![CDATA[ ]]> </a>", "  ", nullptr},
    {"<a><b> <c> x </c> </b></a>", "x", "x"},
    {"<a> x <b> </b> </a>", "x", ""},
    {"<a> x <b> <c/> </b> </a>", "x", ""},
    {"<a><b>x</b>   <b>y</b></a>", "x y", "x"},
    {"<a><b> x </b> <b> y </b></a>", "x   y", "x"},
    {"<a><b>x </b> <b>y</b></a>", "x  y", "x"},
    {"<a><b>x</b> z <b>y</b></a>", "x z y", "x"},
    {"<a><b>x</b><!--c--> <b>y</b></a>", "x y", "x"},
    {"<a><b>x</b> <!--c--> <b>y</b></a>", "x y", "x"},
    {"<a>x<b>y</b> <b>z</b></a>", "xy z", "y"},
    {"<a>x <b/> <b/> y</a>", "x   y", ""},
    {"<a><b>x</b> <b/> <b>y</b></a>", "x y", "x"},
    {"<a><b>x</b><b/> <b/><b>y</b></a>", "x y", "x"},
    {"<a><b>x</b> <![CDATA[c]]> <b>y</b></a>", "x c y", "x"},
    {"<a>x<!--c--> <!--d-->y</a>", "x y", nullptr},
    {"<a>x<?p?> <?p?>y</a>", "x y", nullptr},
    {"<a><![CDATA[x]]>\n <![CDATA[y]]></a>", "xy", nullptr},
    {"<a><![CDATA[x]]> <b>y</b></a>", "x y", "y"},
    {"<a><b>x</b>&#32;<b>y</b></a>", "x y", "x"},
    {"<a><b>x</b>&#32;&#32;<b>y</b></a>", "x y", "x"},
    {"<a xml:space=\"preserve\"><b>x</b>\n  <b>y</b></a>", "x\n  y", "x"},
    {"<a><c xml:space=\"preserve\"><b>x</b>\n  <b>y</b></c></a>", "x\n  y", "x"},
    {"<a> <b>x</b> <b/> </a>", "x", "x"},
    {"<a>x <b> </b> y</a>", "x   y", ""},
    {"<a>x <b>  </b> y</a>", "x   y", ""},
    {"<a><b> </b>x</a>", "x", ""},
    {"<a>x\n<b>\n</b>\ny</a>", "x\n \ny", ""},
    {"<a><b>x</b>\t<b>y</b></a>", "x y", "x"},
    {"<a><c><b>x</b> </c><b>y</b></a>", "x y", "x"},
    {"<a><c> <b>x</b> </c> <c> <b>y</b> </c></a>", "x y", "x"},
    {"<a>\n <c>\n  <b>x</b>\n  <b>y</b>\n </c>\n <c>\n  <b>z</b>\n </c>\n</a>", "x y z", "x"},
    {"<a><b>x</b> <b> </b> <b>y</b></a>", "x y", "x"},
    {"<a><b>x</b>  <b>  </b>  <b>y</b></a>", "x y", "x"},
    {"<a>x<b>  </b>y</a>", "x y", ""},
    {"<a>x<b>\n</b>y</a>", "x y", ""},
    {"<a>x  <!--c-->  y</a>", "x    y", nullptr},
    {"<a><!--c-->x<!--d--></a>", "x", nullptr},
    {"<a>x<!--c--></a>", "x", nullptr},
    {"<a> <!--c--> </a>", "", nullptr},
    {"<a xml:space=\"preserve\"> <!--c--> </a>", "  ", nullptr},
    {"<a xml:space=\"preserve\"><b> x </b> <!--c--> <b>y</b> </a>", " x   y ", " x "},
    {"<a xml:space=\"default\"> x </a>", "x", nullptr},
    {"<a xml:space=\"bogus\"> x </a>", "x", nullptr},
    {"<a xml:space=\"preserve\"><c xml:space=\"default\"> <b> x </b> <b>y</b> </c></a>", " x  y", "x"},
    {"<a><c xml:space=\"preserve\"> <b xml:space=\"default\"> <d> x </d> </b> </c></a>", "x", "x"},
    {"<a><c xml:space=\"preserve\"> x </c> <b>y</b></a>", "x  y", "y"},
    {"<a><c xml:space=\"preserve\"> </c>x</a>", "x", nullptr},
    {"<a>x<c xml:space=\"preserve\"> </c></a>", "x", nullptr},
    {"<a>x<c xml:space=\"preserve\"> </c>y</a>", "x y", nullptr},
    {"<a><c xml:space=\"preserve\"> x </c></a>", "x", nullptr},
    {"<a xml:space=\"preserve\">\n  <b/>\n  x\n</a>", "\n  \n  x\n", ""},
    {"<a><![CDATA[ x ]]></a>", " x ", nullptr},
    {"<a><![CDATA[ ]]></a>", " ", nullptr},
    {"<a>x<![CDATA[ ]]> </a>", "x ", nullptr},
    {"<a>  <![CDATA[ ]]>x </a>", " x", nullptr},
    {"<a><![CDATA[x]]> </a>", "x", nullptr},
    {"<a><b><![CDATA[ x ]]></b> </a>", " x ", " x "},
    {"<a> <b> <![CDATA[ x ]]> </b> </a>", " x ", " x "},
    {"<a><b> <![CDATA[x]]> </b><b>y</b></a>", "x y", "x"},
    {"<a>x<b>y</b><!--c--> </a>", "xy", "y"},
    {"<a>x <b>y</b>\n  <b>z</b> w</a>", "x y z w", "y"},
    {"<a>A&amp; &lt;B</a>", "A& <B", nullptr},
    {"<a>A&amp;  &lt;B</a>", "A&  <B", nullptr},
    {"<a>x\r\n \r\ny</a>", "x\n \ny", nullptr},
    {"<a>x\n \ny</a>", "x\n \ny", nullptr},
    {"<a>x &#32; y</a>", "x   y", nullptr},
    {"<a>x&#32;&#32;y</a>", "x  y", nullptr},
    {"<a>x&#32;&#32;&amp;y</a>", "x  &y", nullptr},
    {"<a><![CDATA[x]]> <![CDATA[y]]></a>", "xy", nullptr},
    {"<a><![CDATA[x]]> <!--c--><![CDATA[y]]></a>", "x y", nullptr},
    {"<a><![CDATA[x]]> <!--c-->y</a>", "x y", nullptr},
    {"<a><![CDATA[x]]> y</a>", "x y", nullptr},
    {"<a>x<!--c--> <![CDATA[y]]></a>", "x y", nullptr},
    {"<a>x<?p?> <![CDATA[y]]></a>", "x y", nullptr},
    {"<a><b>x</b> <![CDATA[y]]></a>", "x y", "x"},
    {"<a><b/> <![CDATA[y]]></a>", "y", ""},
    {"<a>x<b/> <![CDATA[y]]></a>", "x y", ""},
    {"<a>x<b> </b><![CDATA[y]]></a>", "x y", ""},
    {"<a>x<b> <![CDATA[y]]></b></a>", "xy", "y"},
    {"<a>x<b> <![CDATA[y]]> <![CDATA[z]]></b></a>", "xyz", "yz"},
    {"<a><![CDATA[x]]> <b/><![CDATA[y]]></a>", "x y", ""},
    {"<a><![CDATA[x]]> <b><![CDATA[y]]></b></a>", "x y", "y"},
    {"<a><b><![CDATA[x]]> </b><![CDATA[y]]></a>", "x y", "x"},
    {"<a><b><![CDATA[x]]></b> <![CDATA[y]]></a>", "x y", "x"},
    {"<a><b> </b><c> </c>x</a>", "x", ""},
    {"<a>x<b> </b><c> </c>y</a>", "x y", ""},
    {"<a>x <b> </b><c> </c> y</a>", "x   y", ""},
    {"<a>x<b/> <b/> <![CDATA[]]> y</a>", "x  y", ""},
    {"<a>x<b> <c/></b>y</a>", "x y", ""},
    {"<a>x<b><c/> </b>y</a>", "x y", ""},
    {"<a>x<b><!--c--> </b>y</a>", "x y", ""},
    {"<a>x<b> <!--c--></b>y</a>", "x y", ""},
    {"<a>x<b> <!--c--> </b>y</a>", "x y", ""},
    {"<a>x<b> <c> </c> </b>y</a>", "x y", ""},
    {"<a>x<b><c>  </c></b>y</a>", "x y", ""},
    {"<a>x<b xml:space=\"preserve\"></b> <c>y</c></a>", "x y", ""},
    {"<a>x<b/> <c></c> <d> </d>y</a>", "x y", ""},
    {"<a><b/> x</a>", "x", ""},
    {"<a xml:space=\"preserve\">x<b xml:space=\"default\"> </b>y</a>", "x y", ""},
    {"<a xml:space=\"preserve\">x<b xml:space=\"default\"> <c>y</c></b></a>", "xy", "y"},
    {"<a xml:space=\"preserve\"><b xml:space=\"default\"> <c>y</c> </b>z</a>", "y z", "y"},
    {"<a xml:space=\"preserve\"><b xml:space=\"default\"> <c>y</c> </b></a>", "y", "y"},
    {"<a>x<b xml:space=\"preserve\"/> <c xml:space=\"preserve\"> y</c></a>", "x  y", ""},
    {"<a>x<b/> <c xml:space=\"preserve\"><!--q--></c>y</a>", "x y", ""},
    {"<a xml:space=\"preserve\"><b xml:space=\"bogus\"> x </b></a>", " x ", " x "},
    {"<a xml:space=\" preserve \"> x </a>", "x", nullptr},
    {"<a xml:space=\"Preserve\"> x </a>", "x", nullptr},
    {"<a xml:space=\"bogus\"><b> x </b></a>", "x", "x"},
    // clang-format on
};

class MsxmlTextReferenceTest : public testing::TestWithParam<std::size_t> {};

TEST_P(MsxmlTextReferenceTest, TextIsThatOfTheReference) {
  const TextCase& expected = kTextCases[GetParam()];
  SCOPED_TRACE(expected.xml);
  CTextDocument document(expected.xml);
  EXPECT_EQ(Text(document.Root()), expected.text);
  const DOMNodePtr b = SelectOne(document.Root(), L".//b");
  ASSERT_EQ(b == nullptr, expected.textOfB == nullptr);
  if (expected.textOfB == nullptr) return;
  EXPECT_EQ(Text(*b), expected.textOfB);
}

INSTANTIATE_TEST_SUITE_P(All, MsxmlTextReferenceTest, testing::Range<std::size_t>(0, std::size(kTextCases)));

}  // namespace

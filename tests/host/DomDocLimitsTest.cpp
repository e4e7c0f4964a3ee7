// The limits on documents, so that no file takes more time than its size justifies.
#include "TestUtilities/DOMDoc.h"
#include "support/TempDir.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace {

using testing::HasSubstr;

/// The first reason why the document is not valid; empty when it is.
std::string ProblemOf(const std::string& document) {
  const testsupport::TempDir dir;
  CDOMDoc doc({});
  if (doc.ValidateDoc(dir.Write("x.xml", document))) return {};
  return "line " + std::to_string(doc.Problems().at(0).line) + ": " + doc.Problems()[0].reason;
}

std::string Attributes(int count) {
  std::string text;
  for (int i = 0; i < count; ++i) text += " a" + std::to_string(i) + "='1'";
  return text;
}

std::string Repeated(const std::string& text, int count) {
  std::string all;
  for (int i = 0; i < count; ++i) all += text;
  return all;
}

/// ASCII text as UTF-16, with a byte order mark.
std::string Utf16(const std::string& text) {
  std::string wide = "\xFF\xFE";
  for (const char c : text) wide += {c, '\0'};
  return wide;
}

constexpr const char* kTooMany = "line 2: An element has more than 1000 attributes.";

TEST(DomDocLimitsTest, AThousandAttributesAreRead) {
  EXPECT_EQ(ProblemOf("<a>\n<b" + Attributes(1000) + "/></a>"), "");
}

TEST(DomDocLimitsTest, MoreThanAThousandAttributesAreRefused) {
  EXPECT_EQ(ProblemOf("<a>\n<b" + Attributes(1001) + "/></a>"), kTooMany);
  EXPECT_EQ(ProblemOf("<a>\n<b" + Attributes(100'000) + "/></a>"), kTooMany);
}

TEST(DomDocLimitsTest, EqualsSignsAfterALongNameAreCountedQuickly) {
  EXPECT_NE(ProblemOf("<a " + std::string(1'000'000, 'x') + std::string(1'000'000, '=')), "");
  EXPECT_NE(ProblemOf("<a " + std::string(1'000'000, ' ') + std::string(1'000'000, '=')), "");
}

TEST(DomDocLimitsTest, AttributesOfUtf16FilesAreCountedToo) {
  EXPECT_EQ(ProblemOf(Utf16("<a>\n<b" + Attributes(1000) + "/></a>")), "");
  EXPECT_EQ(ProblemOf(Utf16("<a>\n<b" + Attributes(1001) + "/></a>")), kTooMany);
}

TEST(DomDocLimitsTest, CharactersWithTheBytesOfQuotesHideNoAttributesOfUtf16Files) {
  const std::string tag = Utf16("\n<b" + Attributes(1001) + "/></a>").substr(2);
  EXPECT_EQ(ProblemOf(Utf16("<a>") + "\x22\x27\x27\x22" + tag), kTooMany);
}

TEST(DomDocLimitsTest, FileMayNotChangeToUtf16AfterItsDeclaration) {
  const std::string declaration = "<?xml version='1.0' encoding='UTF-16LE'?>";
  EXPECT_NE(ProblemOf(declaration + Utf16("<a/>").substr(2)), "");
}

TEST(DomDocLimitsTest, StrayCharactersMayNotPrecedeADeclarationOfTheEncoding) {
  const std::string end = Utf16("' encoding='UTF-8'?><a/>").substr(2);
  EXPECT_NE(ProblemOf(Utf16("<?xml version='1.0") + Repeated("\xAC\x20", 10'000) + end), "");
}

TEST(DomDocLimitsTest, AttributesAreCountedForEachTag) {
  EXPECT_EQ(ProblemOf("<a>" + Repeated("<b" + Attributes(400) + "></b>", 5) + "</a>"), "");
}

TEST(DomDocLimitsTest, NamespaceDeclarationsCountAsAttributes) {
  std::string declarations;
  for (int i = 0; i < 1001; ++i) declarations += " xmlns:n" + std::to_string(i) + "='u'";
  EXPECT_EQ(ProblemOf("<a>\n<b" + declarations + "/></a>"), kTooMany);
}

TEST(DomDocLimitsTest, EqualsSignsElsewhereAreNotAttributes) {
  const std::string signs(5000, '=');
  EXPECT_EQ(ProblemOf("<a>" + signs + "</a>"), "");
  EXPECT_EQ(ProblemOf("<a b='" + signs + "' c=\"" + signs + "'>" + signs + "\"/>"), "");
  EXPECT_EQ(ProblemOf("<a><!--" + signs + "<x>" + signs + "--></a>"), "");
  EXPECT_EQ(ProblemOf("<a><![CDATA[" + signs + "]><x " + signs + "]]></a>"), "");
  EXPECT_EQ(ProblemOf("<?p " + signs + "><x " + signs + "?><a/>"), "");
}

TEST(DomDocLimitsTest, TagsAreFoundAfterEverythingElse) {
  const std::string tag = "\n<b" + Attributes(1001) + "/></a>";
  for (const char* before :
       {"<a><!-- <x a='>'> -->", "<a><![CDATA[ <x a='>']]>", "<?p <x a='>?><a>", "<a b='>' c=\">\">",
        "<a><!----><![CDATA[]]>", "<a><!--x-y--><![CDATA[]]]]>", "<a><!--><x a='-->", "<a><!---><x a='-->"}) {
    EXPECT_EQ(ProblemOf(before + tag), kTooMany) << before;
  }
}

TEST(DomDocLimitsTest, AThousandNamespacesAroundAnElementAreTooMany) {
  std::string open;
  std::string close;
  for (int i = 0; i < 200; ++i) {
    const std::string n = std::to_string(i);
    open +=
        "<e xmlns:a" + n + "='a' xmlns:b" + n + "='b' xmlns:c" + n + "='c' xmlns:d" + n + "='d' xmlns:e" + n + "='e'";
    open += " xmlns:f" + n + "='f'>";
    close += "</e>";
  }
  EXPECT_THAT(ProblemOf(open + close), HasSubstr("more than 1000 namespaces"));
}

TEST(DomDocLimitsTest, NamespacesOfManySiblingsDoNotAddUp) {
  EXPECT_EQ(ProblemOf("<a>" + Repeated("<b xmlns:n='u' xmlns:m='v'/>", 3000) + "</a>"), "");
}

}  // namespace

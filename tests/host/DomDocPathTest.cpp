// Paths of elements from the root.
#include "support/XmlDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using testing::ElementsAre;
using testsupport::CTextDocument;
using testsupport::Select;
using testsupport::SelectOne;

/// The paths of all elements, in document order.
std::vector<std::string> Paths(std::string_view xml) {
  CTextDocument document(xml);
  std::vector<std::string> paths;
  for (const DOMNodePtr& node : Select(document.Root(), L"//*")) paths.push_back(document.PathOf(*node));
  return paths;
}

TEST(DomDocPathTest, OnlyChildrenHaveNoNumbers) {
  EXPECT_THAT(Paths("<a><b><c/></b><d/></a>"), ElementsAre("a", "a/b", "a/b/c", "a/d"));
}

TEST(DomDocPathTest, SiblingsOfOneNameAreNumberedFromOne) {
  EXPECT_THAT(Paths("<a><b/>text<c/><b><b/></b><!--c--><b/></a>"),
              ElementsAre("a", "a/b[1]", "a/c", "a/b[2]", "a/b[2]/b", "a/b[3]"));
}

TEST(DomDocPathTest, NumbersAreThoseAmongSiblings) {
  EXPECT_THAT(Paths("<a><b><c/><c/></b><b><c/></b></a>"),
              ElementsAre("a", "a/b[1]", "a/b[1]/c[1]", "a/b[1]/c[2]", "a/b[2]", "a/b[2]/c"));
}

TEST(DomDocPathTest, NamesAreLocalAndNamespacesCount) {
  EXPECT_THAT(Paths("<p:a xmlns:p='urn:p' xmlns:q='urn:p' xmlns:o='urn:o'><p:b/><o:b/><b/><q:b/></p:a>"),
              ElementsAre("a", "a/b[1]", "a/b", "a/b", "a/b[2]"));
}

TEST(DomDocPathTest, OnlyElementsHavePaths) {
  CTextDocument document("<a x='1'/>");
  EXPECT_EQ(document.PathOf(*SelectOne(document.Root(), L"@x")), "");
  EXPECT_EQ(document.PathOf(document.Document()), "");
  EXPECT_EQ(document.PathOf(*SelectOne(document.Root(), L"/")), "");
}

TEST(DomDocPathTest, ElementOfAnotherDocumentHasNoPath) {
  CTextDocument document("<a/>");
  CTextDocument other("<a/>");
  EXPECT_EQ(document.PathOf(other.Root()), "");
  EXPECT_EQ(testsupport::CPlainDocument().PathOf(other.Root()), "");
}

TEST(DomDocPathTest, PathsAreThoseOfTheFileLoadedLast) {
  const testsupport::TempDir dir;
  testsupport::CPlainDocument document;
  ASSERT_TRUE(document.ValidateDoc(dir.Write("1.xml", "<a><b/></a>")));
  EXPECT_EQ(document.PathOf(*SelectOne(document.Document(), L"//b")), "a/b");
  ASSERT_TRUE(document.ValidateDoc(dir.Write("2.xml", "<c><d/><b/><b/></c>")));
  EXPECT_EQ(document.PathOf(*SelectOne(document.Document(), L"//b[2]")), "c/b[2]");
}

TEST(DomDocPathTest, DeepestElementHasItsPath) {
  std::string open;
  std::string close;
  std::string path;
  for (int i = 0; i < 256; ++i) {
    open += "<a>";
    close += "</a>";
    path += i == 0 ? "a" : "/a";
  }
  EXPECT_EQ(Paths(open + close).back(), path);
}

TEST(DomDocPathTest, AHundredThousandSiblingsAreNamedQuickly) {
  std::string xml = "<a>";
  for (int i = 0; i < 50'000; ++i) xml += "<b/><c/>";
  const std::vector<std::string> paths = Paths(xml + "</a>");
  ASSERT_EQ(paths.size(), 100'001U);
  EXPECT_EQ(paths[1], "a/b[1]");
  EXPECT_EQ(paths[100'000], "a/c[50000]");
}

}  // namespace

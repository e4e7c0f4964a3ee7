// Attributes called xml:id, which are ordinary attributes here.
#include "support/XmlDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace {

using testing::ElementsAre;
using testsupport::CTextDocument;
using testsupport::NodeNames;
using testsupport::Select;
using testsupport::Texts;

TEST(DomDocXmlIdTest, TwoElementsMayHaveTheSame) {
  CTextDocument document("<a xml:id='x'><b xml:id='x'/><c xml:id='x'/></a>");
  ASSERT_TRUE(document.IsLoaded());
  EXPECT_TRUE(document.Problems().empty());
  EXPECT_THAT(NodeNames(Select(document.Root(), L"//*[@xml:id='x']")), ElementsAre("a", "b", "c"));
}

TEST(DomDocXmlIdTest, MayBeOtherThanAName) {
  CTextDocument document("<a xml:id='1'><b xml:id=''/><c xml:id='a b'/><d xml:id='&lt;&#228;:'/></a>");
  ASSERT_TRUE(document.IsLoaded());
  EXPECT_TRUE(document.Problems().empty());
  EXPECT_THAT(Texts(Select(document.Root(), L"//@xml:id")), ElementsAre("1", "", "a b", "<\u00E4:"));
}

TEST(DomDocXmlIdTest, BlanksInItStay) {
  CTextDocument document("<a xml:id='  x   y '/>");
  ASSERT_TRUE(document.IsLoaded());
  EXPECT_THAT(Texts(Select(document.Root(), L"//@xml:id")), ElementsAre("  x   y "));
}

TEST(DomDocXmlIdTest, TwoOnOneElementAreNotWellFormed) {
  EXPECT_FALSE(CTextDocument("<a xml:id='x' xml:id='y'/>").IsLoaded());
}

}  // namespace

// Namespaces of any form: they are names, and only whether two are equal matters.
#include "support/Schemas.h"
#include "support/XmlDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

namespace {

using testing::IsEmpty;
using testsupport::CSchemaDocument;
using testsupport::CTextDocument;
using testsupport::NodeNames;
using testsupport::Schema;
using testsupport::Select;

/// Texts that do not have the form of a URI, or not that of an absolute one.
constexpr const char* kTexts[] = {"a b", "C:\\x\\y", "\u00E9", "http://x/{a}", "http://[", "%", "%zz", ":", "relative"};

std::string Declaration(std::string_view text) { return std::string(" xmlns:p='").append(text).append("'"); }

TEST(DomDocNamespacesTest, UnusedPrefixMayStandForAnyText) {
  for (const char* text : kTexts) {
    CTextDocument document("<a" + Declaration(text) + "/>");
    EXPECT_TRUE(document.IsLoaded()) << text;
    EXPECT_THAT(document.Problems(), IsEmpty()) << text;
  }
}

TEST(DomDocNamespacesTest, ElementsMayBeInANamespaceOfAnyForm) {
  for (const char* text : kTexts) {
    CTextDocument document("<a" + Declaration(text) + "><p:b/><b/></a>");
    ASSERT_TRUE(document.IsLoaded()) << text;
    const std::wstring isInIt = L"[namespace-uri()='" + Utf8ToUtf16(text) + L"']";
    EXPECT_EQ(Select(document.Root(), L"*").size(), 2U) << text;
    EXPECT_EQ(NodeNames(Select(document.Root(), L"*" + isInIt)), std::vector<std::string>{"p:b"}) << text;
  }
}

TEST(DomDocNamespacesTest, ValidDocumentMayDeclareThemToo) {
  const testsupport::TempDir dir;
  CSchemaDocument document(
      {{dir.Write("t.xsd", Schema("urn:t", "<xs:element name='n' type='xs:integer'/>")), "urn:t"}});
  for (const char* text : kTexts) {
    EXPECT_TRUE(document.ValidateDoc(dir.Write("x.xml", "<n xmlns='urn:t'" + Declaration(text) + ">1</n>"))) << text;
    EXPECT_FALSE(document.ValidateDoc(dir.Write("x.xml", "<n xmlns='urn:t'" + Declaration(text) + ">x</n>"))) << text;
  }
}

TEST(DomDocNamespacesTest, SchemaMayDeclareThemToo) {
  const testsupport::TempDir dir;
  const auto file = dir.Write("x.xml", "<n xmlns='urn:t'>1</n>");
  for (const char* text : kTexts) {
    const std::string element = "<xs:element name='n' type='xs:integer'" + Declaration(text) + "/>";
    CSchemaDocument document({{dir.Write("t.xsd", Schema("urn:t", element)), "urn:t"}});
    EXPECT_TRUE(document.ValidateDoc(file)) << text;
  }
}

}  // namespace

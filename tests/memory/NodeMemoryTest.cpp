// The calls of the XML interfaces, except those that select.
#include "NodeCheck.h"
#include "msxml/ComTypes.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using testsupport::ExpectCallBearsFailures;
using testsupport::ExpectTextBearsFailures;

constexpr const wchar_t* kDeclarations = L"xmlns:a='urn:one' xmlns:b='urn:two-with-a-long-name'";

class NodeMemoryTest : public testing::Test {
 protected:
  NodeMemoryTest() { testsupport::SetSelectionNamespaces(m_document.Document(), kDeclarations); }

  DOMNodePtr Attribute() { return testsupport::SelectOne(m_document.Root(), L"@value"); }

  testsupport::CTextDocument m_document{
      "<a:root-with-a-long-name xmlns:a='urn:one' value='the value of the attribute \xC3\xA4'>"
      "<a:child>some text that is \xC3\xA4 bit longer</a:child><a:child> and more "
      "</a:child></a:root-with-a-long-name>"};
};

TEST_F(NodeMemoryTest, GetNodeName) {
  ExpectTextBearsFailures(L"a:root-with-a-long-name", [&](BSTR* name) { return m_document.Root().get_nodeName(name); });
  ExpectTextBearsFailures(L"#document", [&](BSTR* name) { return m_document.Document().get_nodeName(name); });
}

TEST_F(NodeMemoryTest, GetBaseName) {
  ExpectTextBearsFailures(L"root-with-a-long-name", [&](BSTR* name) { return m_document.Root().get_baseName(name); });
}

TEST_F(NodeMemoryTest, GetNamespaceUri) {
  ExpectTextBearsFailures(L"urn:one", [&](BSTR* uri) { return m_document.Root().get_namespaceURI(uri); });
}

TEST_F(NodeMemoryTest, GetText) {
  const std::wstring expected = L"some text that is \u00E4 bit longer and more";
  ExpectTextBearsFailures(expected, [&](BSTR* text) { return m_document.Root().get_text(text); });
  ExpectTextBearsFailures(expected, [&](BSTR* text) { return m_document.Document().get_text(text); });
}

TEST_F(NodeMemoryTest, GetNodeValue) {
  const DOMNodePtr attribute = Attribute();
  ExpectCallBearsFailures<CVariant>([&](CVariant& value) { return attribute->get_nodeValue(value.Receive()); },
                                    [](HRESULT result, const CVariant& value) {
                                      EXPECT_EQ(result, S_OK);
                                      EXPECT_EQ(value.Text(), L"the value of the attribute \u00E4");
                                    });
}

TEST_F(NodeMemoryTest, GetNamedItem) {
  DOMNamedNodeMapPtr attributes;
  ASSERT_EQ(m_document.Root().get_attributes(attributes.Receive()), S_OK);
  const CBstr name(L"value");
  ExpectCallBearsFailures<DOMNodePtr>(
      [&](DOMNodePtr& attribute) { return attributes->getNamedItem(name.get(), attribute.Receive()); },
      [](HRESULT result, const DOMNodePtr& attribute) {
        EXPECT_EQ(result, S_OK);
        EXPECT_EQ(testsupport::NodeName(*attribute), "value");
      });
}

TEST_F(NodeMemoryTest, GetDocumentElement) {
  ExpectCallBearsFailures<DOMElementPtr>(
      [&](DOMElementPtr& root) { return m_document.Document().get_documentElement(root.Receive()); },
      [](HRESULT result, const DOMElementPtr& root) {
        EXPECT_EQ(result, S_OK);
        EXPECT_EQ(testsupport::NodeName(*root), "a:root-with-a-long-name");
      });
}

TEST_F(NodeMemoryTest, GetItem) {
  DOMNodeListPtr list;
  ASSERT_EQ(m_document.Root().selectNodes(CBstr(L"a:child").get(), list.Receive()), S_OK);
  ExpectCallBearsFailures<DOMNodePtr>([&](DOMNodePtr& node) { return list->get_item(1, node.Receive()); },
                                      [](HRESULT result, const DOMNodePtr& node) {
                                        EXPECT_EQ(result, S_OK);
                                        EXPECT_EQ(testsupport::Text(*node), "and more");
                                      });
}

TEST_F(NodeMemoryTest, GetProperty) {
  const CBstr name(L"SelectionNamespaces");
  ExpectCallBearsFailures<CVariant>(
      [&](CVariant& value) { return m_document.Document().getProperty(name.get(), value.Receive()); },
      [](HRESULT result, const CVariant& value) {
        EXPECT_EQ(result, S_OK);
        EXPECT_EQ(value.Text(), kDeclarations);
      });
}

TEST_F(NodeMemoryTest, SetPropertyThatFailsChangesNothing) {
  const CBstr name(L"SelectionNamespaces");
  const CVariant value{CBstr(L"xmlns:b='urn:three-with-a-long-name' xmlns:long-prefix-of-some-sort='urn:one'")};
  const auto selects = [&](const wchar_t* xpath) {
    DOMNodePtr found;
    return m_document.Document().selectSingleNode(CBstr(xpath).get(), found.Receive()) == S_OK;
  };
  testsupport::ForEveryFailingAllocation(
      [] { return 0; },
      [&](int) { testsupport::Succeeded(m_document.Document().setProperty(name.get(), value.get())); },
      [&](int, bool isDone) {
        EXPECT_EQ(selects(L"long-prefix-of-some-sort:*"), isDone);
        EXPECT_EQ(selects(L"a:*"), !isDone);
        testsupport::SetSelectionNamespaces(m_document.Document(), kDeclarations);
      });
}

TEST_F(NodeMemoryTest, CallsThatTakeNoMemory) {
  DOMNodeListPtr list;
  ASSERT_EQ(m_document.Root().selectNodes(CBstr(L"a:child").get(), list.Receive()), S_OK);
  LONG length = 0;
  DOMNamedNodeMapPtr attributes;
  void* same = nullptr;
  testsupport::ForEveryFailingAllocation([] { return 0; },
                                         [&](int) {
                                           EXPECT_EQ(list->get_length(&length), S_OK);
                                           EXPECT_EQ(m_document.Root().get_attributes(attributes.Receive()), S_OK);
                                           EXPECT_EQ(m_document.Root().QueryInterface(IID_IUnknown, &same), S_OK);
                                           m_document.Root().Release();
                                         },
                                         [&](int, bool isDone) {
                                           EXPECT_TRUE(isDone);
                                           EXPECT_EQ(length, 2);
                                         });
}

}  // namespace

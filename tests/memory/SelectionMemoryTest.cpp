// Selecting nodes: by paths that the library evaluates itself, and by XPath expressions that libxml2 evaluates.
#include "NodeCheck.h"
#include "msxml/ComTypes.h"

#include <gtest/gtest.h>

#include <string>

namespace {

using testsupport::ExpectCallBearsFailures;

/// A document with 40 numbered items, every fifth of which has a note.
std::string Document() {
  std::string text = "<a:list xmlns:a='urn:one'>";
  for (int i = 0; i < 40; ++i) {
    text.append("<a:item number='").append(std::to_string(i)).append("'>text ").append(std::to_string(i));
    text.append(i % 5 == 0 ? "<a:note>a note</a:note></a:item>" : "</a:item>");
  }
  return text + "</a:list>";
}

class SelectionMemoryTest : public testing::Test {
 protected:
  SelectionMemoryTest() { testsupport::SetSelectionNamespaces(m_document.Document(), L"xmlns:a='urn:one'"); }

  void ExpectListBearsFailures(const wchar_t* xpath, LONG count) {
    const CBstr text(xpath);
    ExpectCallBearsFailures<DOMNodeListPtr>(
        [&](DOMNodeListPtr& list) {
          ForgetLastPath();
          return m_document.Root().selectNodes(text.get(), list.Receive());
        },
        [&](HRESULT result, const DOMNodeListPtr& list) {
          EXPECT_EQ(result, S_OK);
          LONG length = 0;
          list->get_length(&length);
          EXPECT_EQ(length, count);
        });
  }

  void ExpectFirstBearsFailures(const wchar_t* xpath, const std::string& expected) {
    const CBstr text(xpath);
    ExpectCallBearsFailures<DOMNodePtr>(
        [&](DOMNodePtr& node) {
          ForgetLastPath();
          return m_document.Root().selectSingleNode(text.get(), node.Receive());
        },
        [&](HRESULT result, const DOMNodePtr& node) {
          EXPECT_EQ(result, S_OK);
          EXPECT_EQ(testsupport::Text(*node), expected);
        });
  }

  testsupport::CTextDocument m_document{Document()};

 private:
  /// The last path stays parsed until another one is used.
  void ForgetLastPath() {
    DOMNodePtr none;
    m_document.Root().selectSingleNode(m_otherPath.get(), none.Receive());
  }

  CBstr m_otherPath{L"a:none"};
};

TEST_F(SelectionMemoryTest, SelectNodesByPath) {
  ExpectListBearsFailures(L"a:item", 40);
  ExpectListBearsFailures(L"a:item/a:note", 8);
  ExpectListBearsFailures(L"a:*/a:*", 8);
}

TEST_F(SelectionMemoryTest, SelectSingleNodeByPath) { ExpectFirstBearsFailures(L"a:item/a:note", "a note"); }

TEST_F(SelectionMemoryTest, SelectNodesByExpression) {
  ExpectListBearsFailures(L"//*", 49);
  ExpectListBearsFailures(L"a:item[@number > 17]", 22);
  ExpectListBearsFailures(L"*[not(self::a:note)]", 40);
  ExpectListBearsFailures(L"a:item/@number | //a:note | /a:list", 49);
  ExpectListBearsFailures(L"//a:note/ancestor::a:item[contains(concat(., 'x'), 'note')]", 8);
}

TEST_F(SelectionMemoryTest, SelectSingleNodeByExpression) {
  ExpectFirstBearsFailures(L"a:item[@number = 7]", "text 7");
  ExpectFirstBearsFailures(L"a:item[last()]", "text 39");
}

TEST_F(SelectionMemoryTest, SelectNodesByAnExpressionThatFails) {
  for (const wchar_t* xpath : {L"a:item[", L"unknown:item[1]", L"unknown-function()", L"1 + 1"}) {
    const CBstr text(xpath);
    ExpectCallBearsFailures<DOMNodeListPtr>(
        [&](DOMNodeListPtr& list) { return m_document.Root().selectNodes(text.get(), list.Receive()); },
        [](HRESULT result, const DOMNodeListPtr& list) {
          EXPECT_EQ(result, E_FAIL);
          EXPECT_EQ(list, nullptr);
        });
  }
}

}  // namespace

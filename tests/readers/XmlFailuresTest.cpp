// What the reader makes of a document whose calls fail.
#include "BaseUtilities/Exceptions.h"
#include "FakeNode.h"
#include "XmlReader.h"
#include "msxml/ComTypes.h"
#include "support/ComErrors.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vif {

namespace {

using testing::IsEmpty;

// What an error names that is not about a call on an interface.
#ifdef _WIN32
constexpr IID kNoInterface = {};
#else
constexpr IID kNoInterface = IID_IUnknown;
#endif

class XmlFailuresTest : public testing::Test {
 protected:
  XmlFailuresTest() { m_leaf.Add(L"Deep"); }

  std::optional<_com_error> Extract() {
    try {
      ExtractFields(m_root, {m_fields, m_componentCount});
    } catch (const _com_error& error) {
      return error;
    }
    return std::nullopt;
  }

  void ExpectFailure(HRESULT result, REFIID iid) {
    const std::optional<_com_error> error = Extract();
    ASSERT_TRUE(error.has_value());
    EXPECT_EQ(error->Error(), result);
    EXPECT_EQ(testsupport::FailedInterface(*error), iid);
  }

  FakeNode m_root{L"VIF"};
  FakeNode& m_component = m_root.Add(L"Component");
  FakeNode& m_first = m_component.Add(L"Port_Label");
  FakeNode& m_list = m_component.Add(L"SrcPdoList");
  FakeNode& m_item = m_list.Add(L"SrcPDO");
  FakeNode& m_leaf = m_item.Add(L"SnkPdoList");  // in which there is one more element
  std::vector<CVIFField> m_fields;
  std::uint32_t m_componentCount = 0;
};

TEST_F(XmlFailuresTest, NothingFailsByItself) {
  EXPECT_FALSE(Extract().has_value());
  EXPECT_EQ(m_fields.size(), 1u);
}

TEST_F(XmlFailuresTest, FailingSelectionNamesTheNode) {
  m_root.failing = Call::SelectSingleNode;
  ExpectFailure(E_FAIL, IID_IXMLDOMNode);
  EXPECT_THAT(m_fields, IsEmpty());
}

TEST_F(XmlFailuresTest, FailingListSelectionNamesTheNode) {
  m_component.failing = Call::SelectNodes;
  ExpectFailure(E_FAIL, IID_IXMLDOMNode);
  EXPECT_EQ(m_componentCount, 1u);
}

TEST_F(XmlFailuresTest, FailingLengthNamesTheList) {
  m_component.failing = Call::Length;
  ExpectFailure(E_FAIL, IID_IXMLDOMNodeList);
}

TEST_F(XmlFailuresTest, FailingItemNamesTheList) {
  m_component.failing = Call::Item;
  ExpectFailure(E_FAIL, IID_IXMLDOMNodeList);
}

TEST_F(XmlFailuresTest, FailingAttributeLookUpNamesTheMap) {
  m_first.failing = Call::NamedItem;
  ExpectFailure(E_FAIL, IID_IXMLDOMNamedNodeMap);
}

TEST_F(XmlFailuresTest, FailingNameTextOrAttributesNameTheNode) {
  for (const Call call : {Call::BaseName, Call::Text, Call::Attributes}) {
    m_first.failing = call;
    ExpectFailure(E_FAIL, IID_IXMLDOMNode);
  }
}

TEST_F(XmlFailuresTest, MissingListIsAnInvalidPointer) {
  m_component.listIsMissing = true;
  ExpectFailure(E_POINTER, kNoInterface);
}

TEST_F(XmlFailuresTest, MissingItemIsAnInvalidPointer) {
  m_component.itemsAreMissing = true;
  ExpectFailure(E_POINTER, kNoInterface);
}

TEST_F(XmlFailuresTest, MissingAttributesAreAnInvalidPointer) {
  m_first.attributesAreMissing = true;
  ExpectFailure(E_POINTER, kNoInterface);
}

std::string DomErrorOf(IXMLDOMElement& root) {
  std::vector<CVIFField> fields;
  std::uint32_t componentCount = 0;
  try {
    ExtractFields(root, {fields, componentCount});
  } catch (const CZoDOMDocException& error) {
    return error.what();
  }
  return "<no exception>";
}

TEST_F(XmlFailuresTest, ListWhoseNameCannotBeReadIsADocumentError) {
  m_list.failing = Call::NodeName;
  EXPECT_EQ(DomErrorOf(m_root), "ERROR:  Couldn't get node name.\r\n");
}

TEST_F(XmlFailuresTest, ListWithoutANameIsADocumentError) {
  m_list.nameIsMissing = true;
  EXPECT_EQ(DomErrorOf(m_root), "ERROR:  Couldn't get node name.\r\n");
}

TEST_F(XmlFailuresTest, NameOfALeafListIsNeverAsked) {
  m_first.failing = Call::NodeName;
  EXPECT_FALSE(Extract().has_value());
}

TEST_F(XmlFailuresTest, FieldsBeforeTheFailureStay) {
  m_item.failing = Call::Length;
  EXPECT_TRUE(Extract().has_value());
  ASSERT_EQ(m_fields.size(), 1u);
  EXPECT_STREQ(m_fields.front().Name(), "Port_Label");
  EXPECT_EQ(m_componentCount, 1u);
}

}  // namespace

}  // namespace vif

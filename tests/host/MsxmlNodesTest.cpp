// Names, values, attributes and lifetimes of nodes, and invalid arguments.
#include "msxml/ComTypes.h"
#include "support/XmlDocument.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <memory>
#include <string>

namespace {

using testing::ElementsAre;
using testsupport::CPlainDocument;
using testsupport::CTextDocument;
using testsupport::NodeName;
using testsupport::NodeNames;
using testsupport::Select;
using testsupport::SelectionNamespaces;
using testsupport::SelectOne;
using testsupport::SetSelectionNamespaces;
using testsupport::Text;

constexpr std::string_view kNamespaces = "<p:a xmlns:p='urn:p' xmlns='urn:d' x='1' p:y='2'><b/><c xmlns=''/></p:a>";

std::string BaseName(IXMLDOMNode& node) {
  CBstr name;
  EXPECT_EQ(node.get_baseName(name.Receive()), S_OK);
  return Utf16ToUtf8(name.View());
}

/// "<none>" when there is none.
std::string NamespaceOf(IXMLDOMNode& node) {
  CBstr uri;
  const HRESULT result = node.get_namespaceURI(uri.Receive());
  if (result == S_FALSE && uri.get() == nullptr) return "<none>";
  EXPECT_EQ(result, S_OK);
  return Utf16ToUtf8(uri.View());
}

/// "<none>" when the element has no attribute of that name.
std::string AttributeOf(IXMLDOMNode& element, std::wstring_view name) {
  DOMNamedNodeMapPtr attributes;
  EXPECT_EQ(element.get_attributes(attributes.Receive()), S_OK);
  DOMNodePtr attribute;
  const HRESULT result = attributes->getNamedItem(CBstr(name).get(), attribute.Receive());
  if (result == S_FALSE && attribute == nullptr) return "<none>";
  EXPECT_EQ(result, S_OK);
  CVariant value;
  EXPECT_EQ(attribute->get_nodeValue(value.Receive()), S_OK);
  EXPECT_EQ(value.get().vt, VT_BSTR);
  return Utf16ToUtf8(value.Text());
}

DOMNodePtr AttributeNode(IXMLDOMNode& element, std::wstring_view name) {
  DOMNamedNodeMapPtr attributes;
  testsupport::Require(element.get_attributes(attributes.Receive()));
  DOMNodePtr attribute;
  testsupport::Require(attributes->getNamedItem(CBstr(name).get(), attribute.Receive()));
  return attribute;
}

DOMNodeListPtr ListOf(IXMLDOMNode& node, std::wstring_view xpath) {
  DOMNodeListPtr list;
  testsupport::Require(node.selectNodes(CBstr(xpath).get(), list.Receive()));
  return list;
}

/// The result of QueryInterface; the interface is released.
HRESULT Query(IUnknown& object, REFIID iid) {
  void* found = &object;
  const HRESULT result = object.QueryInterface(iid, &found);
  EXPECT_EQ(found != nullptr, SUCCEEDED(result));
  if (SUCCEEDED(result)) static_cast<IUnknown*>(found)->Release();
  return result;
}

// Names.

TEST(MsxmlNodesTest, NodeNameHasThePrefix) {
  CTextDocument document(kNamespaces);
  EXPECT_EQ(NodeName(document.Root()), "p:a");
  EXPECT_THAT(NodeNames(Select(document.Root(), L"*")), ElementsAre("b", "c"));
  EXPECT_THAT(NodeNames(Select(document.Root(), L"@*")), ElementsAre("x", "p:y"));
}

TEST(MsxmlNodesTest, BaseNameHasNoPrefix) {
  CTextDocument document(kNamespaces);
  EXPECT_EQ(BaseName(document.Root()), "a");
  EXPECT_EQ(BaseName(*SelectOne(document.Root(), L"*")), "b");
  EXPECT_EQ(BaseName(*AttributeNode(document.Root(), L"p:y")), "y");
}

TEST(MsxmlNodesTest, NamesMayHaveAnyLetters) {
  CTextDocument document("<\u00E4 \u03C9='\U0001F600'/>");
  EXPECT_EQ(NodeName(document.Root()), "\u00E4");
  EXPECT_EQ(AttributeOf(document.Root(), L"\u03C9"), "\U0001F600");
}

TEST(MsxmlNodesTest, NamespaceOfAnElementIsThatOfItsPrefixOrTheDefault) {
  CTextDocument document(kNamespaces);
  EXPECT_EQ(NamespaceOf(document.Root()), "urn:p");
  EXPECT_EQ(NamespaceOf(*SelectOne(document.Root(), L"*[1]")), "urn:d");
  EXPECT_EQ(NamespaceOf(*SelectOne(document.Root(), L"*[2]")), "<none>");
}

TEST(MsxmlNodesTest, PrefixXmlNeedsNoDeclaration) {
  CTextDocument document("<xml:a><xml:b/></xml:a>");
  EXPECT_EQ(NodeName(document.Root()), "xml:a");
  EXPECT_EQ(NamespaceOf(document.Root()), "http://www.w3.org/XML/1998/namespace");
  EXPECT_EQ(NamespaceOf(*SelectOne(document.Root(), L"*")), "http://www.w3.org/XML/1998/namespace");
}

TEST(MsxmlNodesTest, NamespaceMayHaveAnAmpersand) {
  CTextDocument document("<a xmlns='urn:a?b&amp;c'/>");
  EXPECT_EQ(NamespaceOf(document.Root()), "urn:a?b&c");
}

TEST(MsxmlNodesTest, DefaultNamespaceDoesNotApplyToAttributes) {
  CTextDocument document(kNamespaces);
  EXPECT_EQ(NamespaceOf(*AttributeNode(document.Root(), L"x")), "<none>");
  EXPECT_EQ(NamespaceOf(*AttributeNode(document.Root(), L"p:y")), "urn:p");
}

TEST(MsxmlNodesTest, DocumentHasANameAndNothingElse) {
  CTextDocument document("<a x='1'/>");
  const DOMNodePtr selected = SelectOne(document.Root(), L"/");
  for (IXMLDOMNode* const node : {static_cast<IXMLDOMNode*>(&document.Document()), selected.GetInterfacePtr()}) {
    EXPECT_EQ(NodeName(*node), "#document");
    EXPECT_EQ(NamespaceOf(*node), "<none>");
    CBstr name;
    EXPECT_EQ(node->get_baseName(name.Receive()), S_FALSE);
    EXPECT_EQ(name.get(), nullptr);
    DOMNamedNodeMapPtr attributes;
    EXPECT_EQ(node->get_attributes(attributes.Receive()), S_FALSE);
    EXPECT_TRUE(attributes == nullptr);
    CVariant value;
    EXPECT_EQ(node->get_nodeValue(value.Receive()), S_FALSE);
    EXPECT_EQ(value.get().vt, VT_NULL);
  }
}

TEST(MsxmlNodesTest, DocumentElementIsTheRoot) {
  CTextDocument document("<?p?><!--c--><a/>");
  DOMElementPtr root;
  ASSERT_EQ(document.Document().get_documentElement(root.Receive()), S_OK);
  EXPECT_EQ(NodeName(*root), "a");
}

TEST(MsxmlNodesTest, EmptyDocumentHasNothingInIt) {
  CPlainDocument document;
  DOMElementPtr root;
  EXPECT_EQ(document.Document().get_documentElement(root.Receive()), S_FALSE);
  EXPECT_TRUE(root == nullptr);
  EXPECT_EQ(Text(document.Document()), "");
  EXPECT_TRUE(SelectOne(document.Document(), L"//*") == nullptr);
  DOMNodeListPtr list;
#ifdef _WIN32  // MSXML has an empty list
  EXPECT_EQ(document.Document().selectNodes(CBstr(L"//*").get(), list.Receive()), S_OK);
  LONG length = -1;
  EXPECT_EQ(list->get_length(&length), S_OK);
  EXPECT_EQ(length, 0);
#else
  EXPECT_EQ(document.Document().selectNodes(CBstr(L"//*").get(), list.Receive()), S_FALSE);
  EXPECT_TRUE(list == nullptr);
#endif
}

// Values.

TEST(MsxmlNodesTest, ElementHasNoValue) {
  CTextDocument document("<a>x</a>");
  CVariant value;
  EXPECT_EQ(document.Root().get_nodeValue(value.Receive()), S_FALSE);
  EXPECT_EQ(value.get().vt, VT_NULL);
}

TEST(MsxmlNodesTest, WhiteSpaceInAnAttributeIsBlanks) {
  CTextDocument document("<a value='5\n6\t7\r\n8'/>");
  EXPECT_EQ(AttributeOf(document.Root(), L"value"), "5 6 7 8");
}

TEST(MsxmlNodesTest, WhiteSpaceByReferenceStaysInAnAttribute) {
  CTextDocument document("<a value='5&#10;6&#9;&#13;'/>");
  EXPECT_EQ(AttributeOf(document.Root(), L"value"), "5\n6\t\r");
}

TEST(MsxmlNodesTest, ReferencesInAnAttributeAreCharacters) {
  CTextDocument document("<a value='&lt;&amp;&gt;&quot;&apos;&#x41;'/>");
  EXPECT_EQ(AttributeOf(document.Root(), L"value"), "<&>\"'A");
}

TEST(MsxmlNodesTest, AttributeMayBeEmpty) {
  CTextDocument document("<a value=''/>");
  EXPECT_EQ(AttributeOf(document.Root(), L"value"), "");
}

TEST(MsxmlNodesTest, AttributesAreFoundByQualifiedName) {
  CTextDocument document("<a xmlns:q='urn:q' value='1' q:value='2'/>");
  EXPECT_EQ(AttributeOf(document.Root(), L"value"), "1");
  EXPECT_EQ(AttributeOf(document.Root(), L"q:value"), "2");
}

TEST(MsxmlNodesTest, AttributeWithAPrefixIsNotFoundWithoutIt) {
  CTextDocument document("<a xmlns:q='urn:q' q:value='2'/>");
  EXPECT_EQ(AttributeOf(document.Root(), L"value"), "<none>");
}

TEST(MsxmlNodesTest, LetterCaseOfAttributesCounts) {
  CTextDocument document("<a Value='1' vaLue='2'/>");
  EXPECT_EQ(AttributeOf(document.Root(), L"value"), "<none>");
  EXPECT_EQ(AttributeOf(document.Root(), L"Value"), "1");
}

TEST(MsxmlNodesTest, AttributeHasNoAttributes) {
  CTextDocument document("<a x='1'/>");
  DOMNamedNodeMapPtr attributes;
  EXPECT_EQ(AttributeNode(document.Root(), L"x")->get_attributes(attributes.Receive()), S_FALSE);
  EXPECT_TRUE(attributes == nullptr);
}

TEST(MsxmlNodesTest, ElementWithoutAttributesHasAnEmptyMap) {
  CTextDocument document("<a/>");
  EXPECT_EQ(AttributeOf(document.Root(), L"x"), "<none>");
}

// Lists.

TEST(MsxmlNodesTest, ListCountsItsItems) {
  CTextDocument document("<a><b/><b/></a>");
  LONG length = -1;
  EXPECT_EQ(ListOf(document.Root(), L"b")->get_length(&length), S_OK);
  EXPECT_EQ(length, 2);
  EXPECT_EQ(ListOf(document.Root(), L"c")->get_length(&length), S_OK);
  EXPECT_EQ(length, 0);
}

TEST(MsxmlNodesTest, ItemOutOfRangeIsNone) {
  CTextDocument document("<a><b/><b/></a>");
  const DOMNodeListPtr list = ListOf(document.Root(), L"b");
  using Limits = std::numeric_limits<LONG>;
  for (const LONG index : {LONG{-1}, LONG{2}, LONG{3}, Limits::max(), Limits::min()}) {
    IXMLDOMNode* node = &document.Root();
    EXPECT_EQ(list->get_item(index, &node), S_FALSE) << index;
    EXPECT_EQ(node, nullptr) << index;
  }
}

TEST(MsxmlNodesTest, ListOfNothingHasNoItem) {
  CTextDocument document("<a/>");
  IXMLDOMNode* node = &document.Root();
  EXPECT_EQ(ListOf(document.Root(), L"b")->get_item(0, &node), S_FALSE);
  EXPECT_EQ(node, nullptr);
}

// Interfaces and lifetimes.

TEST(MsxmlNodesTest, ObjectsAnswerToTheirInterfacesOnly) {
  CTextDocument document("<a x='1'><b/></a>");
  const DOMNodePtr attribute = AttributeNode(document.Root(), L"x");
  const DOMNodeListPtr list = ListOf(document.Root(), L"b");
  const DOMNodeListPtr listOfNothing = ListOf(document.Root(), L"c");
  DOMNamedNodeMapPtr map;
  ASSERT_EQ(document.Root().get_attributes(map.Receive()), S_OK);
  const struct {
    IUnknown& object;
    std::vector<IID> interfaces;
  } objects[] = {{document.Document(), {IID_IUnknown, IID_IXMLDOMNode, IID_IXMLDOMDocument2}},
                 {document.Root(), {IID_IUnknown, IID_IXMLDOMNode, IID_IXMLDOMElement}},
                 {*attribute, {IID_IUnknown, IID_IXMLDOMNode}},
                 {*list, {IID_IUnknown, IID_IXMLDOMNodeList}},
                 {*listOfNothing, {IID_IUnknown, IID_IXMLDOMNodeList}},
                 {*map, {IID_IUnknown, IID_IXMLDOMNamedNodeMap}}};
  for (const auto& [object, interfaces] : objects) {
    for (const IID& iid : {IID_IUnknown, IID_IXMLDOMNode, IID_IXMLDOMNodeList, IID_IXMLDOMNamedNodeMap,
                           IID_IXMLDOMElement, IID_IXMLDOMDocument2, IID{}}) {
      const bool isOwn = std::find(interfaces.begin(), interfaces.end(), iid) != interfaces.end();
      EXPECT_EQ(Query(object, iid), isOwn || iid == IID_IUnknown ? S_OK : E_NOINTERFACE);
    }
  }
}

TEST(MsxmlNodesTest, QueriedInterfaceIsCounted) {
  CTextDocument document("<a><b/></a>");
  const DOMNodePtr node = SelectOne(document.Root(), L"b");
  void* element = nullptr;
  ASSERT_EQ(node->QueryInterface(IID_IXMLDOMElement, &element), S_OK);
  EXPECT_EQ(static_cast<IXMLDOMElement*>(element)->Release(), 1U);
}

TEST(MsxmlNodesTest, EveryCallReturnsANewObject) {
  CTextDocument document("<a><b/></a>");
  const DOMNodePtr node = SelectOne(document.Root(), L"b");
  EXPECT_EQ(node->AddRef(), 2U);
  EXPECT_EQ(node->Release(), 1U);
}

TEST(MsxmlNodesTest, NodesOutliveTheirDocument) {
  auto document = std::make_unique<CTextDocument>("<a x='1'><b>y<c/></b></a>");
  const DOMNodePtr b = SelectOne(document->Root(), L"b");
  const DOMNodePtr attribute = AttributeNode(document->Root(), L"x");
  const DOMNodeListPtr list = ListOf(document->Root(), L"//c");
  document = nullptr;
  EXPECT_EQ(Text(*b), "y");
  EXPECT_THAT(NodeNames(Select(*b, L".. | c")), ElementsAre("a", "c"));
  EXPECT_EQ(Text(*attribute), "1");
  DOMNodePtr c;
  EXPECT_EQ(list->get_item(0, c.Receive()), S_OK);
  EXPECT_EQ(NodeName(*c), "c");
}

TEST(MsxmlNodesTest, NodesOutliveTheirList) {
  CTextDocument document("<a><b>y</b></a>");
  DOMNodeListPtr list = ListOf(document.Root(), L"b");
  DOMNodePtr node;
  ASSERT_EQ(list->get_item(0, node.Receive()), S_OK);
  list = nullptr;
  EXPECT_EQ(Text(*node), "y");
}

TEST(MsxmlNodesTest, NodesStayUnchangedWhenTheDocumentLoadsAnotherFile) {
  const testsupport::TempDir dir;
  CPlainDocument document;
  ASSERT_TRUE(document.ValidateDoc(dir.Write("1.xml", "<a>first</a>")));
  const DOMElementPtr root = document.GetRootElement();
  ASSERT_TRUE(document.ValidateDoc(dir.Write("2.xml", "<b>second</b>")));
  EXPECT_EQ(Text(*root), "first");
  EXPECT_EQ(Text(*document.GetRootElement()), "second");
}

// Invalid arguments.

TEST(MsxmlNodesTest, NullPointerForAResultIsAnInvalidArgument) {
  CTextDocument document("<a x='1'/>");
  CPlainDocument empty;
  const DOMNodePtr attribute = AttributeNode(document.Root(), L"x");
  const CBstr xpath(L"*");
  for (IXMLDOMNode* const node :
       {static_cast<IXMLDOMNode*>(&document.Document()), static_cast<IXMLDOMNode*>(&document.Root()),
        attribute.GetInterfacePtr(), static_cast<IXMLDOMNode*>(&empty.Document())}) {
    EXPECT_EQ(node->get_nodeName(nullptr), E_INVALIDARG);
    EXPECT_EQ(node->get_nodeValue(nullptr), E_INVALIDARG);
    EXPECT_EQ(node->get_text(nullptr), E_INVALIDARG);
    EXPECT_EQ(node->selectNodes(xpath.get(), nullptr), E_INVALIDARG);
    EXPECT_EQ(node->selectSingleNode(xpath.get(), nullptr), E_INVALIDARG);
    EXPECT_EQ(node->get_namespaceURI(nullptr), E_INVALIDARG);
    EXPECT_EQ(node->get_baseName(nullptr), E_INVALIDARG);
#ifdef _WIN32  // not every MSXML survives this on an element
    if (node == &document.Root()) continue;
#endif
    EXPECT_EQ(node->get_attributes(nullptr), E_INVALIDARG);
  }
  EXPECT_EQ(document.Document().get_documentElement(nullptr), E_INVALIDARG);
  EXPECT_EQ(document.Document().getProperty(CBstr(L"SelectionNamespaces").get(), nullptr), E_INVALIDARG);
}

TEST(MsxmlNodesTest, NullPointerForAnItemIsAnInvalidArgument) {
  CTextDocument document("<a x='1'><b/></a>");
  for (const wchar_t* xpath : {L"b", L"c"}) {
    const DOMNodeListPtr list = ListOf(document.Root(), xpath);
    EXPECT_EQ(list->get_item(0, nullptr), E_INVALIDARG);
    EXPECT_EQ(list->get_length(nullptr), E_INVALIDARG);
  }
  DOMNamedNodeMapPtr map;
  ASSERT_EQ(document.Root().get_attributes(map.Receive()), S_OK);
  EXPECT_EQ(map->getNamedItem(CBstr(L"x").get(), nullptr), E_INVALIDARG);
}

TEST(MsxmlNodesTest, NullPointerForAnInterfaceIsAnInvalidPointer) {
#ifdef _WIN32
  GTEST_SKIP() << "COM does not say what happens then, and not every MSXML survives it";
#else
  CTextDocument document("<a><b/></a>");
  DOMNamedNodeMapPtr map;
  ASSERT_EQ(document.Root().get_attributes(map.Receive()), S_OK);
  EXPECT_EQ(document.Root().QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(document.Document().QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(ListOf(document.Root(), L"b")->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(ListOf(document.Root(), L"c")->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
  EXPECT_EQ(map->QueryInterface(IID_IUnknown, nullptr), E_POINTER);
#endif
}

TEST(MsxmlNodesTest, NullNameIsAnInvalidArgument) {
  CTextDocument document("<a x='1'/>");
  DOMNamedNodeMapPtr map;
  ASSERT_EQ(document.Root().get_attributes(map.Receive()), S_OK);
  IXMLDOMNode* node = &document.Root();
  EXPECT_EQ(map->getNamedItem(nullptr, &node), E_INVALIDARG);
#ifndef _WIN32  // not every MSXML writes a result when it fails
  EXPECT_EQ(node, nullptr);
#endif
}

TEST(MsxmlNodesTest, NullXPathIsAnInvalidArgument) {
  CTextDocument document("<a/>");
  CPlainDocument empty;
  for (IXMLDOMNode* const from :
       {static_cast<IXMLDOMNode*>(&document.Document()), static_cast<IXMLDOMNode*>(&document.Root()),
        static_cast<IXMLDOMNode*>(&empty.Document())}) {
    IXMLDOMNode* node = from;
    EXPECT_EQ(from->selectSingleNode(nullptr, &node), E_INVALIDARG);
#ifndef _WIN32  // not every MSXML writes a result when it fails
    EXPECT_EQ(node, nullptr);
#endif
    DOMNodeListPtr list;
    EXPECT_EQ(from->selectNodes(nullptr, list.Receive()), E_INVALIDARG);
    EXPECT_TRUE(list == nullptr);
  }
}

// Properties.

TEST(MsxmlNodesTest, SelectionNamespacesAreReturnedAsSet) {
  CPlainDocument document;
  EXPECT_EQ(SelectionNamespaces(document.Document()), L"");
#ifdef _WIN32  // not every MSXML accepts more than one blank between them
  constexpr const wchar_t* blanks = L"  xmlns:p='urn:p' xmlns:q=\"urn:q\" ";
#else
  constexpr const wchar_t* blanks = L"  xmlns:p='urn:p'\n\txmlns:q=\"urn:'q\" ";
#endif
  for (const wchar_t* declarations :
       {L"xmlns:p='urn:p'", blanks, L"xmlns:p=''", L"xmlns:p='1' xmlns:p='2'", L"xmlns:\u00E4='\u00DF'", L""}) {
    EXPECT_EQ(SetSelectionNamespaces(document.Document(), declarations), S_OK) << Utf16ToUtf8(declarations);
    EXPECT_EQ(SelectionNamespaces(document.Document()), declarations);
  }
}

TEST(MsxmlNodesTest, SelectionNamespacesStayWhenAFileIsLoaded) {
  const testsupport::TempDir dir;
  CPlainDocument document;
  ASSERT_EQ(SetSelectionNamespaces(document.Document(), L"xmlns:p='urn:p'"), S_OK);
  ASSERT_TRUE(document.ValidateDoc(dir.Write("1.xml", "<a xmlns='urn:p'/>")));
  EXPECT_EQ(SelectionNamespaces(document.Document()), L"xmlns:p='urn:p'");
  EXPECT_FALSE(SelectOne(document.Document(), L"p:a") == nullptr);
}

TEST(MsxmlNodesTest, MalformedDeclarationsAreRefused) {
  CTextDocument document("<a xmlns='urn:p'/>");
  ASSERT_EQ(SetSelectionNamespaces(document.Document(), L"xmlns:p='urn:p'"), S_OK);
#ifdef _WIN32  // MSXML is less strict with some, reports another error, and need not keep the earlier value
  for (const wchar_t* declarations :
       {L"p='urn:x'", L"xmlns:p", L"xmlns:p=", L"xmlns:p='", L"xmlns:p='urn:x", L"xmlns:p=urn:x"}) {
    EXPECT_TRUE(FAILED(SetSelectionNamespaces(document.Document(), declarations))) << Utf16ToUtf8(declarations);
  }
#else
  for (const wchar_t* declarations :
       {L"p='urn:x'", L"xmlns:p", L"xmlns:p=", L"xmlns:p='", L"xmlns:p='urn:x", L"xmlns:p=urn:x", L"xmlns='urn:x'",
        L"xmlns:='urn:x'", L"xmlns:1='urn:x'", L"xmlns:p:q='urn:x'", L"xmlns:p = 'urn:x'",
        L"xmlns:p='urn:x'xmlns:q='urn:y'", L"xmlns:p='urn:x\"", L"xmlns:p='urn:x' nonsense", L"xmlns:p='urn:x',"}) {
    EXPECT_EQ(SetSelectionNamespaces(document.Document(), declarations), E_INVALIDARG) << Utf16ToUtf8(declarations);
  }
  EXPECT_EQ(SelectionNamespaces(document.Document()), L"xmlns:p='urn:p'");
  EXPECT_FALSE(SelectOne(document.Document(), L"p:a") == nullptr);
#endif
}

TEST(MsxmlNodesTest, ValueThatIsNotATextIsRefusedAndChangesNothing) {
  CPlainDocument document;
  ASSERT_EQ(SetSelectionNamespaces(document.Document(), L"xmlns:p='urn:p'"), S_OK);
  VARIANT value;
  VariantInit(&value);
  const CBstr name(L"SelectionNamespaces");
#ifdef _WIN32  // an empty value is the empty text
  value.vt = VT_NULL;
  EXPECT_TRUE(FAILED(document.Document().setProperty(name.get(), value)));
#else
  EXPECT_EQ(document.Document().setProperty(name.get(), value), E_INVALIDARG);
  value.vt = VT_NULL;
  EXPECT_EQ(document.Document().setProperty(name.get(), value), E_INVALIDARG);
#endif
  EXPECT_EQ(SelectionNamespaces(document.Document()), L"xmlns:p='urn:p'");
}

TEST(MsxmlNodesTest, OtherPropertiesAreRefused) {
  CPlainDocument document;
  const CVariant declarations{CBstr(L"xmlns:p='urn:p'")};
#ifdef _WIN32  // MSXML has more of them, and reports another error for the rest
  const auto isRefusal = [](HRESULT result) { return FAILED(result); };
  constexpr const wchar_t* names[] = {L"", L"SelectionNamespaces ", L"NoProperty"};
#else
  const auto isRefusal = [](HRESULT result) { return result == E_INVALIDARG; };
  constexpr const wchar_t* names[] = {L"", L"SelectionNamespaces ", L"NoProperty", L"selectionnamespaces",
                                      L"SelectionLanguage"};
#endif
  for (const wchar_t* name : names) {
    EXPECT_TRUE(isRefusal(document.Document().setProperty(CBstr(name).get(), declarations.get())));
    CVariant value;
    EXPECT_TRUE(isRefusal(document.Document().getProperty(CBstr(name).get(), value.Receive())));
    EXPECT_EQ(value.get().vt, VT_EMPTY);
  }
  EXPECT_TRUE(isRefusal(document.Document().setProperty(nullptr, declarations.get())));
  CVariant value;
  EXPECT_TRUE(isRefusal(document.Document().getProperty(nullptr, value.Receive())));
  EXPECT_EQ(SelectionNamespaces(document.Document()), L"");
}

}  // namespace

#include "DomCalls.h"

#include "BaseUtilities/StringConvert.h"
#include "SystemText.h"

namespace vif {

namespace {

void Require(HRESULT result, IUnknown& object, REFIID iid) {
  if (FAILED(result)) _com_issue_errorex(result, &object, iid);
}

}  // namespace

DOMNodeListPtr SelectNodes(IXMLDOMNode& node, const CBstr& xpath) {
  DOMNodeListPtr nodes;
  Require(node.selectNodes(xpath.get(), nodes.Receive()), node, IID_IXMLDOMNode);
  return nodes;
}

DOMNodePtr SelectSingleNode(IXMLDOMNode& node, const CBstr& xpath) {
  DOMNodePtr found;
  Require(node.selectSingleNode(xpath.get(), found.Receive()), node, IID_IXMLDOMNode);
  return found;
}

LONG Length(IXMLDOMNodeList& nodes) {
  LONG length = 0;
  Require(nodes.get_length(&length), nodes, IID_IXMLDOMNodeList);
  return length;
}

DOMNodePtr Item(IXMLDOMNodeList& nodes, LONG index) {
  DOMNodePtr node;
  Require(nodes.get_item(index, node.Receive()), nodes, IID_IXMLDOMNodeList);
  return node;
}

std::string LocalName(IXMLDOMNode& node) {
  CBstr name;
  Require(node.get_baseName(name.Receive()), node, IID_IXMLDOMNode);
  return SystemText(name.View());
}

std::string Namespace(IXMLDOMNode& node) {
  CBstr uri;
  Require(node.get_namespaceURI(uri.Receive()), node, IID_IXMLDOMNode);
  return Utf16ToUtf8(uri.View());
}

std::string Text(IXMLDOMNode& node) {
  CBstr text;
  Require(node.get_text(text.Receive()), node, IID_IXMLDOMNode);
  return SystemText(text.View());
}

std::optional<std::string> Attribute(IXMLDOMNode& element, const CBstr& name) {
  DOMNamedNodeMapPtr attributes;
  Require(element.get_attributes(attributes.Receive()), element, IID_IXMLDOMNode);
  DOMNodePtr attribute;
  Require(attributes->getNamedItem(name.get(), attribute.Receive()), *attributes, IID_IXMLDOMNamedNodeMap);
  if (attribute == nullptr) return std::nullopt;
  CVariant value;
  Require(attribute->get_nodeValue(value.Receive()), *attribute, IID_IXMLDOMNode);
  return Utf16ToUtf8(value.Text());
}

}  // namespace vif

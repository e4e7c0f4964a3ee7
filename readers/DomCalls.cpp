#include "DomCalls.h"

#include "BaseUtilities/StringConvert.h"
#include "BaseUtilities/SystemText.h"

namespace vif {

DOMNodeListPtr SelectNodes(IXMLDOMNode& node, const CBstr& xpath) {
  DOMNodeListPtr nodes;
  RequireSuccess(node.selectNodes(xpath.get(), nodes.Receive()), node, IID_IXMLDOMNode);
  return nodes;
}

DOMNodePtr SelectSingleNode(IXMLDOMNode& node, const CBstr& xpath) {
  DOMNodePtr found;
  RequireSuccess(node.selectSingleNode(xpath.get(), found.Receive()), node, IID_IXMLDOMNode);
  return found;
}

LONG Length(IXMLDOMNodeList& nodes) {
  LONG length = 0;
  RequireSuccess(nodes.get_length(&length), nodes, IID_IXMLDOMNodeList);
  return length;
}

DOMNodePtr Item(IXMLDOMNodeList& nodes, LONG index) {
  DOMNodePtr node;
  RequireSuccess(nodes.get_item(index, node.Receive()), nodes, IID_IXMLDOMNodeList);
  return node;
}

std::string LocalName(IXMLDOMNode& node) {
  CBstr name;
  RequireSuccess(node.get_baseName(name.Receive()), node, IID_IXMLDOMNode);
  return WideToSystem(name.View());
}

std::string Namespace(IXMLDOMNode& node) {
  CBstr uri;
  RequireSuccess(node.get_namespaceURI(uri.Receive()), node, IID_IXMLDOMNode);
  return Utf16ToUtf8(uri.View());
}

std::string Text(IXMLDOMNode& node) {
  CBstr text;
  RequireSuccess(node.get_text(text.Receive()), node, IID_IXMLDOMNode);
  return WideToSystem(text.View());
}

std::optional<std::string> Attribute(IXMLDOMNode& element, const CBstr& name) {
  DOMNamedNodeMapPtr attributes;
  RequireSuccess(element.get_attributes(attributes.Receive()), element, IID_IXMLDOMNode);
  DOMNodePtr attribute;
  RequireSuccess(attributes->getNamedItem(name.get(), attribute.Receive()), *attributes, IID_IXMLDOMNamedNodeMap);
  if (attribute == nullptr) return std::nullopt;
  CVariant value;
  RequireSuccess(attribute->get_nodeValue(value.Receive()), *attribute, IID_IXMLDOMNode);
  return Utf16ToUtf8(value.Text());
}

}  // namespace vif

// The interfaces through which XML documents are read: MSXML's on Windows; elsewhere this project's own, with the
// members that the library uses.
#pragma once

#include "msxml/ComPointer.h"

#ifdef _WIN32

#include <msxml2.h>

// Not every import library has it.
EXTERN_C const IID DECLSPEC_SELECTANY IID_IXMLDOMDocument2 = {
    0x2933BF95, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

#else

#include <cstdint>

struct IXMLDOMNodeList;
struct IXMLDOMNamedNodeMap;

/// The identifier of `IXMLDOMNode`.
constexpr zocom::Guid IID_IXMLDOMNode = {0x2933BF80, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
/// The identifier of `IXMLDOMNodeList`.
constexpr zocom::Guid IID_IXMLDOMNodeList = {
    0x2933BF82, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
/// The identifier of `IXMLDOMNamedNodeMap`.
constexpr zocom::Guid IID_IXMLDOMNamedNodeMap = {
    0x2933BF83, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
/// The identifier of `IXMLDOMElement`.
constexpr zocom::Guid IID_IXMLDOMElement = {
    0x2933BF86, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
/// The identifier of `IXMLDOMDocument2`.
constexpr zocom::Guid IID_IXMLDOMDocument2 = {
    0x2933BF95, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

// A call returns 0; or 1 (COM's S_FALSE) and a null answer if there is none; or a negative result if it fails:
// 0x80070057 (E_INVALIDARG) for a wrong argument or a null place for the answer, 0x8007000E (E_OUTOFMEMORY), or
// 0x80004005 (E_FAIL). The caller owns the answer and releases or frees it. Nothing throws.
//
// Any thread may count references; otherwise only one thread at a time may use the nodes of a document. A node keeps
// the content that it belongs to alive, even after the document is destroyed or loaded again.

/// An element, an attribute or the document.
struct IXMLDOMNode : zocom::Unknown {
  /// The name with its prefix; for a document, "#document".
  virtual zocom::Result get_nodeName(zocom::Text* name) = 0;

  /// The value of an attribute. An element has none: null (`zocom::kNullVariant`), and the result 1.
  virtual zocom::Result get_nodeValue(zocom::Variant* value) = 0;

  /// The attributes; none (1) for anything but an element.
  virtual zocom::Result get_attributes(IXMLDOMNamedNodeMap** attributes) = 0;

  /// The text of all descendants, without comments. White space at both ends is removed and white space between
  /// elements becomes one blank, except where `xml:space="preserve"` applies.
  virtual zocom::Result get_text(zocom::Text* text) = 0;

  /// The nodes that an XPath finds from here, in document order, with the prefixes of "SelectionNamespaces". The list
  /// holds only elements, attributes and the document.
  virtual zocom::Result selectNodes(zocom::Text xpath, IXMLDOMNodeList** nodes) = 0;

  /// The first of these nodes.
  virtual zocom::Result selectSingleNode(zocom::Text xpath, IXMLDOMNode** node) = 0;

  /// The namespace; 1 if there is none.
  virtual zocom::Result get_namespaceURI(zocom::Text* uri) = 0;

  /// The name without its prefix.
  virtual zocom::Result get_baseName(zocom::Text* name) = 0;

 protected:
  ~IXMLDOMNode() = default;
};

/// An element.
struct IXMLDOMElement : IXMLDOMNode {
 protected:
  ~IXMLDOMElement() = default;
};

/// Nodes in document order.
struct IXMLDOMNodeList : zocom::Unknown {
  /// \param index from 0; out of range: 1 and null
  /// \param node receives the node
  virtual zocom::Result get_item(std::int32_t index, IXMLDOMNode** node) = 0;

  /// \param length receives the number of nodes
  virtual zocom::Result get_length(std::int32_t* length) = 0;

 protected:
  ~IXMLDOMNodeList() = default;
};

/// The attributes of an element.
struct IXMLDOMNamedNodeMap : zocom::Unknown {
  /// The attribute with that qualified name.
  virtual zocom::Result getNamedItem(zocom::Text name, IXMLDOMNode** attribute) = 0;

 protected:
  ~IXMLDOMNamedNodeMap() = default;
};

/// A document. As a node it is the parent of its root element.
struct IXMLDOMDocument2 : IXMLDOMNode {
  /// The root; none (1) if nothing has been loaded.
  virtual zocom::Result get_documentElement(IXMLDOMElement** root) = 0;

  /// Sets "SelectionNamespaces": the declarations that XPath expressions use, in the form xmlns:prefix='URI', separated
  /// by blanks. Any other property or form of value is a wrong argument and changes nothing.
  virtual zocom::Result setProperty(zocom::Text name, zocom::Variant value) = 0;

  /// The value of "SelectionNamespaces", as it was set.
  virtual zocom::Result getProperty(zocom::Text name, zocom::Variant* value) = 0;

 protected:
  ~IXMLDOMDocument2() = default;
};

#endif

using DOMNodePtr = CComPointer<IXMLDOMNode>;                  ///< owns a reference to a node
using DOMElementPtr = CComPointer<IXMLDOMElement>;            ///< owns a reference to an element
using DOMNodeListPtr = CComPointer<IXMLDOMNodeList>;          ///< owns a reference to a list of nodes
using DOMNamedNodeMapPtr = CComPointer<IXMLDOMNamedNodeMap>;  ///< owns a reference to the attributes of an element
using DOMDocument2Ptr = CComPointer<IXMLDOMDocument2>;        ///< owns a reference to a document

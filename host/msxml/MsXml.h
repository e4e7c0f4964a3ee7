// The interfaces through which XML documents are read: MSXML's on Windows, elsewhere those of its members that the
// library uses, supplied by this project.
#pragma once

#include "msxml/ComPointer.h"

#ifdef _WIN32

#include <msxml2.h>

// Not every import library has it.
EXTERN_C const IID DECLSPEC_SELECTANY IID_IXMLDOMDocument2 = {
    0x2933BF95, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

#else

struct IXMLDOMNodeList;
struct IXMLDOMNamedNodeMap;

constexpr IID IID_IXMLDOMNode = {0x2933BF80, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
constexpr IID IID_IXMLDOMNodeList = {0x2933BF82, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
constexpr IID IID_IXMLDOMNamedNodeMap = {0x2933BF83, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
constexpr IID IID_IXMLDOMElement = {0x2933BF86, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};
constexpr IID IID_IXMLDOMDocument2 = {0x2933BF95, 0x7B36, 0x11D2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

// Every call gives a negative result when it fails: E_INVALIDARG for a null place to put the answer or a wrong
// argument, E_OUTOFMEMORY, E_FAIL. S_FALSE with a null answer means that there is none. An answer is the caller's to
// release or free. Nothing throws.
//
// References may be counted from any thread; otherwise the nodes of one document are for one thread at a time. A node
// keeps the content that it is from, even when the document is gone or has been loaded anew.

/// An element, an attribute or the document.
struct IXMLDOMNode : IUnknown {
  /// The name with its prefix; of a document, "#document".
  virtual HRESULT get_nodeName(BSTR* name) = 0;

  /// The value of an attribute. An element has none: null (VT_NULL) and S_FALSE.
  virtual HRESULT get_nodeValue(VARIANT* value) = 0;

  /// The attributes; none (S_FALSE) for anything but an element.
  virtual HRESULT get_attributes(IXMLDOMNamedNodeMap** attributes) = 0;

  /// The text of all descendants. Comments are left out, white space at both ends is removed and white space between
  /// elements becomes one blank, except where `xml:space="preserve"` is in force.
  virtual HRESULT get_text(BSTR* text) = 0;

  /// The nodes that an XPath finds from here, in document order, with the prefixes of "SelectionNamespaces".
  /// Of what it finds, only elements, attributes and the document are in the list.
  virtual HRESULT selectNodes(BSTR xpath, IXMLDOMNodeList** nodes) = 0;

  /// The first of these nodes.
  virtual HRESULT selectSingleNode(BSTR xpath, IXMLDOMNode** node) = 0;

  /// The namespace; S_FALSE when there is none.
  virtual HRESULT get_namespaceURI(BSTR* uri) = 0;

  /// The name without its prefix.
  virtual HRESULT get_baseName(BSTR* name) = 0;

 protected:
  ~IXMLDOMNode() = default;
};

struct IXMLDOMElement : IXMLDOMNode {
 protected:
  ~IXMLDOMElement() = default;
};

struct IXMLDOMNodeList : IUnknown {
  /// \param index from 0; with any other number than there are, S_FALSE and null
  virtual HRESULT get_item(LONG index, IXMLDOMNode** node) = 0;

  virtual HRESULT get_length(LONG* length) = 0;

 protected:
  ~IXMLDOMNodeList() = default;
};

struct IXMLDOMNamedNodeMap : IUnknown {
  /// The attribute with that qualified name.
  virtual HRESULT getNamedItem(BSTR name, IXMLDOMNode** attribute) = 0;

 protected:
  ~IXMLDOMNamedNodeMap() = default;
};

/// A document. As a node it stands above its root element.
struct IXMLDOMDocument2 : IXMLDOMNode {
  /// The root; none (S_FALSE) when nothing has been loaded.
  virtual HRESULT get_documentElement(IXMLDOMElement** root) = 0;

  /// Sets "SelectionNamespaces": declarations of the form xmlns:prefix='URI', with blanks between them, that XPath
  /// expressions use. Another property or another form of the value is an E_INVALIDARG, which changes nothing.
  virtual HRESULT setProperty(BSTR name, VARIANT value) = 0;

  /// The value of "SelectionNamespaces" as it was set.
  virtual HRESULT getProperty(BSTR name, VARIANT* value) = 0;

 protected:
  ~IXMLDOMDocument2() = default;
};

#endif

using DOMNodePtr = CComPointer<IXMLDOMNode>;
using DOMElementPtr = CComPointer<IXMLDOMElement>;
using DOMNodeListPtr = CComPointer<IXMLDOMNodeList>;
using DOMNamedNodeMapPtr = CComPointer<IXMLDOMNamedNodeMap>;
using DOMDocument2Ptr = CComPointer<IXMLDOMDocument2>;

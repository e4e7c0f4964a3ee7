// Bases of fake XML objects: the calls that a fake leaves to them fail.
#pragma once

#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"

namespace vif {

#if defined(_WIN32) && defined(__GNUC__)
// COM's interfaces have no virtual destructor, and nothing is deleted through them.
#pragma GCC diagnostic ignored "-Wnon-virtual-dtor"
#endif

/// Objects that live as long as the test; counting references is of no use to them.
template <typename Interface>
class Uncounted : public Interface {
 public:
  virtual ~Uncounted() = default;
  HRESULT QueryInterface(REFIID, void** object) override {
    *object = nullptr;
    return E_NOINTERFACE;
  }
  ULONG AddRef() override { return 1; }
  ULONG Release() override { return 1; }
};

#ifdef _WIN32

// MSXML's interfaces have members that the reader never calls.

template <typename Interface>
class Undispatched : public Uncounted<Interface> {
 public:
  HRESULT GetTypeInfoCount(UINT*) override { return E_NOTIMPL; }
  HRESULT GetTypeInfo(UINT, LCID, ITypeInfo**) override { return E_NOTIMPL; }
  HRESULT GetIDsOfNames(REFIID, LPOLESTR*, UINT, LCID, DISPID*) override { return E_NOTIMPL; }
  HRESULT Invoke(DISPID, REFIID, LCID, WORD, DISPPARAMS*, VARIANT*, EXCEPINFO*, UINT*) override { return E_NOTIMPL; }
};

class UnfakedList : public Undispatched<IXMLDOMNodeList> {
 public:
  HRESULT nextNode(IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT reset() override { return E_NOTIMPL; }
  HRESULT get__newEnum(IUnknown**) override { return E_NOTIMPL; }
};

class UnfakedMap : public Undispatched<IXMLDOMNamedNodeMap> {
 public:
  HRESULT setNamedItem(IXMLDOMNode*, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT removeNamedItem(BSTR, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT get_item(LONG, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT get_length(LONG*) override { return E_NOTIMPL; }
  HRESULT getQualifiedItem(BSTR, BSTR, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT removeQualifiedItem(BSTR, BSTR, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT nextNode(IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT reset() override { return E_NOTIMPL; }
  HRESULT get__newEnum(IUnknown**) override { return E_NOTIMPL; }
};

class UnfakedElement : public Undispatched<IXMLDOMElement> {
 public:
  HRESULT put_nodeValue(VARIANT) override { return E_NOTIMPL; }
  HRESULT get_nodeType(DOMNodeType*) override { return E_NOTIMPL; }
  HRESULT get_parentNode(IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT get_childNodes(IXMLDOMNodeList**) override { return E_NOTIMPL; }
  HRESULT get_firstChild(IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT get_lastChild(IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT get_previousSibling(IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT get_nextSibling(IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT insertBefore(IXMLDOMNode*, VARIANT, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT replaceChild(IXMLDOMNode*, IXMLDOMNode*, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT removeChild(IXMLDOMNode*, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT appendChild(IXMLDOMNode*, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT hasChildNodes(VARIANT_BOOL*) override { return E_NOTIMPL; }
  HRESULT get_ownerDocument(IXMLDOMDocument**) override { return E_NOTIMPL; }
  HRESULT cloneNode(VARIANT_BOOL, IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT get_nodeTypeString(BSTR*) override { return E_NOTIMPL; }
  HRESULT put_text(BSTR) override { return E_NOTIMPL; }
  HRESULT get_specified(VARIANT_BOOL*) override { return E_NOTIMPL; }
  HRESULT get_definition(IXMLDOMNode**) override { return E_NOTIMPL; }
  HRESULT get_nodeTypedValue(VARIANT*) override { return E_NOTIMPL; }
  HRESULT put_nodeTypedValue(VARIANT) override { return E_NOTIMPL; }
  HRESULT get_dataType(VARIANT*) override { return E_NOTIMPL; }
  HRESULT put_dataType(BSTR) override { return E_NOTIMPL; }
  HRESULT get_xml(BSTR*) override { return E_NOTIMPL; }
  HRESULT transformNode(IXMLDOMNode*, BSTR*) override { return E_NOTIMPL; }
  HRESULT get_parsed(VARIANT_BOOL*) override { return E_NOTIMPL; }
  HRESULT get_prefix(BSTR*) override { return E_NOTIMPL; }
  HRESULT transformNodeToObject(IXMLDOMNode*, VARIANT) override { return E_NOTIMPL; }
  HRESULT get_tagName(BSTR*) override { return E_NOTIMPL; }
  HRESULT getAttribute(BSTR, VARIANT*) override { return E_NOTIMPL; }
  HRESULT setAttribute(BSTR, VARIANT) override { return E_NOTIMPL; }
  HRESULT removeAttribute(BSTR) override { return E_NOTIMPL; }
  HRESULT getAttributeNode(BSTR, IXMLDOMAttribute**) override { return E_NOTIMPL; }
  HRESULT setAttributeNode(IXMLDOMAttribute*, IXMLDOMAttribute**) override { return E_NOTIMPL; }
  HRESULT removeAttributeNode(IXMLDOMAttribute*, IXMLDOMAttribute**) override { return E_NOTIMPL; }
  HRESULT getElementsByTagName(BSTR, IXMLDOMNodeList**) override { return E_NOTIMPL; }
  HRESULT normalize() override { return E_NOTIMPL; }
};

#else

using UnfakedList = Uncounted<IXMLDOMNodeList>;
using UnfakedMap = Uncounted<IXMLDOMNamedNodeMap>;
using UnfakedElement = Uncounted<IXMLDOMElement>;

#endif

}  // namespace vif

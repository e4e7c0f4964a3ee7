// An XML document that is parsed, validated and queried through the interfaces.
#pragma once

#include "libxml2/Counted.h"
#include "libxml2/DomNodes.h"
#include "libxml2/XmlTree.h"
#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"

#include <memory>
#include <string>

namespace libxml2 {

class CDomDocument final : public CCounted<IXMLDOMDocument2> {
 public:
  CDomDocument();

  /// Replaces the content. Nodes of the old content remain unchanged.
  /// \param tree null for an empty document
  void SetTree(std::shared_ptr<const CXmlTree> tree);

  /// Null when the document is empty.
  const CXmlTree* Tree() const { return m_state->tree.get(); }

  HRESULT QueryInterface(REFIID iid, void** object) override;
  HRESULT get_nodeName(BSTR* name) override;
  HRESULT get_nodeValue(VARIANT* value) override;
  HRESULT get_attributes(IXMLDOMNamedNodeMap** attributes) override;
  HRESULT get_text(BSTR* text) override;
  HRESULT selectNodes(BSTR xpath, IXMLDOMNodeList** nodes) override;
  HRESULT selectSingleNode(BSTR xpath, IXMLDOMNode** node) override;
  HRESULT get_namespaceURI(BSTR* uri) override;
  HRESULT get_baseName(BSTR* name) override;
  HRESULT get_documentElement(IXMLDOMElement** root) override;
  HRESULT setProperty(BSTR name, VARIANT value) override;
  HRESULT getProperty(BSTR name, VARIANT* value) override;

 private:
  /// Only for a document that has been loaded.
  xmlNode* Node() const;

  StatePointer m_state;
  std::wstring m_selectionNamespaces;
};

}  // namespace libxml2

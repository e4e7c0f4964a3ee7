// An XML document: parsed, validated and asked through the interfaces.
#pragma once

#include "msxml/ComTypes.h"
#include "msxml/Counted.h"
#include "msxml/DomNodes.h"
#include "msxml/MsXml.h"
#include "msxml/XmlTree.h"

#include <memory>
#include <string>

namespace msxml {

class CDomDocument final : public CCounted<IXMLDOMDocument2> {
 public:
  CDomDocument();

  /// Replaces the content. Nodes of the former content stay as they are.
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
  /// Of a document that has been loaded.
  xmlNode* Node() const;

  StatePointer m_state;
  std::wstring m_selectionNamespaces;
};

}  // namespace msxml

// An XML document that is parsed, validated and queried through the interfaces.
#pragma once

#include "libxml2/Counted.h"
#include "libxml2/NodeCalls.h"
#include "libxml2/XmlTree.h"
#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"

#include <memory>
#include <string>

namespace libxml2 {

class CDomDocument final : public CNodeCalls<CCounted<IXMLDOMDocument2>> {
 public:
  CDomDocument();

  /// Replaces the content. Nodes of the old content remain unchanged.
  /// \param tree null for an empty document
  void SetTree(std::shared_ptr<const CXmlTree> tree);

  /// Null when the document is empty.
  const CXmlTree* Tree() const { return m_state->tree.get(); }

  HRESULT QueryInterface(REFIID iid, void** object) override;
  HRESULT get_documentElement(IXMLDOMElement** root) override;
  HRESULT setProperty(BSTR name, VARIANT value) override;
  HRESULT getProperty(BSTR name, VARIANT* value) override;

 private:
  StatePointer m_state;
  std::wstring m_selectionNamespaces;
};

}  // namespace libxml2

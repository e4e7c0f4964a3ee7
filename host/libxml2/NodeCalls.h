// The calls that the interfaces of all nodes have in common.
#pragma once

#include "libxml2/DomNodes.h"
#include "libxml2/NodeText.h"
#include "libxml2/XmlText.h"

#include <optional>
#include <string>
#include <string_view>

namespace libxml2 {

/// Implements the calls of `IXMLDOMNode` for an interface derived from it. The destructor is virtual if the interface's
/// is.
template <typename Interface>
class CNodeCalls : public Interface {  // NOLINT(cppcoreguidelines-virtual-class-destructor)
 public:
  const StatePointer& State() const { return m_state; }
  xmlNode* Node() const { return m_node; }

  HRESULT get_nodeName(BSTR* name) override {
    if (name == nullptr) return E_INVALIDARG;
    return Guarded([&] {
      *name = IsDocument() ? MakeBstr("#document") : MakeBstr(QualifiedName(m_node->ns, m_node->name));
      return S_OK;
    });
  }

  HRESULT get_nodeValue(VARIANT* value) override {
    if (value == nullptr) return E_INVALIDARG;
    VariantInit(value);
    if (!IsAttribute()) {
      value->vt = VT_NULL;
      return S_FALSE;
    }
    return Guarded([&] {
      value->bstrVal = MakeBstr(AttributeValue(*m_node));
      value->vt = VT_BSTR;
      return S_OK;
    });
  }

  HRESULT get_attributes(IXMLDOMNamedNodeMap** attributes) override {
    if (attributes == nullptr) return E_INVALIDARG;
    *attributes = nullptr;
    return S_FALSE;
  }

  HRESULT get_text(BSTR* text) override {
    if (text == nullptr) return E_INVALIDARG;
    return Guarded([&] {
      const xmlNode* element = IsDocument() ? Root() : m_node;
      std::optional<std::string_view> plain = std::string_view();
      if (IsAttribute()) {
        plain = AttributeValue(*m_node);
      } else if (element != nullptr) {
        plain = PlainText(*element);
      }
      *text = plain ? MakeBstr(*plain) : MakeBstr(NodeText(*element));
      return S_OK;
    });
  }

  HRESULT selectNodes(BSTR xpath, IXMLDOMNodeList** nodes) override {
    return SelectList(m_state, m_node, xpath, nodes);
  }

  HRESULT selectSingleNode(BSTR xpath, IXMLDOMNode** node) override {
    return SelectFirst(m_state, m_node, xpath, node);
  }

  HRESULT get_namespaceURI(BSTR* uri) override {
    return GiveText(IsDocument() || m_node->ns == nullptr ? nullptr : m_node->ns->href, uri);
  }

  HRESULT get_baseName(BSTR* name) override { return GiveText(IsDocument() ? nullptr : m_node->name, name); }

 protected:
  /// \param state may be constructed later, but must outlive this object
  /// \param node null for a document that has not been loaded
  CNodeCalls(const StatePointer& state, xmlNode* node) : m_state(state), m_node(node) {}
  ~CNodeCalls() = default;  // NOLINT(modernize-use-override)

  void SetNode(xmlNode* node) { m_node = node; }

 private:
  bool IsAttribute() const { return m_node != nullptr && m_node->type == XML_ATTRIBUTE_NODE; }
  bool IsDocument() const { return m_node == nullptr || m_node->type == XML_DOCUMENT_NODE; }
  const xmlNode* Root() const { return m_node != nullptr ? m_state->tree->Root() : nullptr; }

  /// Returns an optional text: S_FALSE and null when there is none.
  static HRESULT GiveText(const xmlChar* text, BSTR* place) {
    if (place == nullptr) return E_INVALIDARG;
    return Guarded([&] {
      *place = text != nullptr ? MakeBstr(View(text)) : nullptr;
      return text != nullptr ? S_OK : S_FALSE;
    });
  }

  const StatePointer& m_state;
  xmlNode* m_node;
};

}  // namespace libxml2

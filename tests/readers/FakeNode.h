// A document whose calls fail on demand.
#pragma once

#include "UnfakedCalls.h"
#include "msxml/ComTypes.h"

#include <list>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace vif {

/// The calls that can be made to fail.
enum class Call { None, NodeName, BaseName, Text, Attributes, SelectNodes, SelectSingleNode, Length, Item, NamedItem };

class FakeNode;

class FakeList : public UnfakedList {
 public:
  explicit FakeList(std::vector<FakeNode*> nodes) : m_nodes(std::move(nodes)) {}
  HRESULT get_item(LONG index, IXMLDOMNode** node) override;
  HRESULT get_length(LONG* length) override;

  Call failing = Call::None;
  bool itemsAreMissing = false;

 private:
  std::vector<FakeNode*> m_nodes;
};

class FakeAttributes : public UnfakedMap {
 public:
  HRESULT getNamedItem(BSTR, IXMLDOMNode** attribute) override {
    *attribute = nullptr;
    return failing == Call::NamedItem ? E_FAIL : S_FALSE;
  }

  Call failing = Call::None;
};

/// An element that finds children by the last step of a path, and all of them by any other.
class FakeNode : public UnfakedElement {
 public:
  explicit FakeNode(std::wstring name) : m_name(std::move(name)) {}

  FakeNode& Add(const std::wstring& name) { return m_children.emplace_back(name); }

  HRESULT get_nodeName(BSTR* name) override {
    *name = failing == Call::NodeName || nameIsMissing ? nullptr : SysAllocString((L"vif:" + m_name).c_str());
    return failing == Call::NodeName ? E_FAIL : S_OK;
  }
  HRESULT get_baseName(BSTR* name) override { return Give(Call::BaseName, m_name, name); }
  HRESULT get_text(BSTR* text) override { return Give(Call::Text, L"text", text); }
  HRESULT get_namespaceURI(BSTR* uri) override { return Give(Call::None, L"", uri); }
  HRESULT get_nodeValue(VARIANT* value) override {
    VariantInit(value);
    return S_FALSE;
  }
  HRESULT get_attributes(IXMLDOMNamedNodeMap** attributes) override {
    *attributes = failing == Call::Attributes || attributesAreMissing ? nullptr : &m_attributes;
    m_attributes.failing = failing;
    return failing == Call::Attributes ? E_FAIL : S_OK;
  }
  HRESULT selectNodes(BSTR xpath, IXMLDOMNodeList** nodes) override {
    *nodes = nullptr;
    if (failing == Call::SelectNodes) return E_FAIL;
    if (listIsMissing) return S_OK;
    FakeList& list = m_lists.emplace_back(Find(xpath));
    list.failing = failing;
    list.itemsAreMissing = itemsAreMissing;
    *nodes = &list;
    return S_OK;
  }
  HRESULT selectSingleNode(BSTR xpath, IXMLDOMNode** node) override {
    *node = nullptr;
    if (failing == Call::SelectSingleNode) return E_FAIL;
    const std::vector<FakeNode*> found = Find(xpath);
    if (!found.empty()) *node = found.front();
    return found.empty() ? S_FALSE : S_OK;
  }

  Call failing = Call::None;
  bool nameIsMissing = false;
  bool listIsMissing = false;
  bool itemsAreMissing = false;
  bool attributesAreMissing = false;

 private:
  HRESULT Give(Call call, const std::wstring& text, BSTR* place) const {
    *place = failing == call && call != Call::None ? nullptr : SysAllocString(text.c_str());
    return failing == call && call != Call::None ? E_FAIL : S_OK;
  }

  std::vector<FakeNode*> Find(std::wstring_view xpath) {
    const std::wstring_view name = xpath.substr(xpath.rfind(L':') + 1);
    std::vector<FakeNode*> found;
    for (FakeNode& child : m_children) {
      if (name == L"*" || name == child.m_name) found.push_back(&child);
    }
    return found;
  }

  std::wstring m_name;
  // Lists take a type that is not complete yet, and leave their elements where they are.
  std::list<FakeNode> m_children;
  std::list<FakeList> m_lists;
  FakeAttributes m_attributes;
};

inline HRESULT FakeList::get_item(LONG index, IXMLDOMNode** node) {
  *node = failing == Call::Item || itemsAreMissing ? nullptr : m_nodes.at(static_cast<std::size_t>(index));
  return failing == Call::Item ? E_FAIL : S_OK;
}

inline HRESULT FakeList::get_length(LONG* length) {
  *length = static_cast<LONG>(m_nodes.size());
  return failing == Call::Length ? E_FAIL : S_OK;
}

}  // namespace vif

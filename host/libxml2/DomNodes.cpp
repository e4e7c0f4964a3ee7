#include "libxml2/DomNodes.h"

#include "BaseUtilities/Encode.h"
#include "BaseUtilities/StringConvert.h"
#include "libxml2/Counted.h"
#include "libxml2/NodeCalls.h"
#include "libxml2/XmlText.h"

#include <algorithm>
#include <limits>
#include <new>
#include <string>
#include <utility>
#include <vector>

namespace libxml2 {

namespace {

/// Only the nodes of this file support it.
constexpr IID kNodeBehind = {0x8C4A2F10, 0x51D3, 0x4E0B, {0x9A, 0x77, 0x3D, 0x5E, 0x20, 0xB1, 0xC6, 0x48}};

class CDomNode;  // NOLINT(cppcoreguidelines-virtual-class-destructor): see below

/// The attributes of a node. They are part of the node and share its reference count, so that getting them needs no
/// memory.
class CDomAttributes final : public IXMLDOMNamedNodeMap {
 public:
  explicit CDomAttributes(CDomNode& node) : m_node(node) {}

  HRESULT QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    return iid == IID_IUnknown || iid == IID_IXMLDOMNamedNodeMap ? Answer(this, object) : RefuseInterface(object);
  }

  ULONG AddRef() override;
  ULONG Release() override;
  HRESULT getNamedItem(BSTR name, IXMLDOMNode** attribute) override;

 private:
  static bool IsNamed(const xmlAttr& attribute, std::wstring_view wanted) {
    const std::string_view name = View(attribute.name);
    const auto isSame = [](char a, wchar_t b) {
      return static_cast<unsigned char>(a) < 0x80 && static_cast<wchar_t>(a) == b;  // ASCII
    };
    if (attribute.ns == nullptr && std::equal(name.begin(), name.end(), wanted.begin(), wanted.end(), isSame)) {
      return true;  // as nearly always, and without memory
    }
    return QualifiedName(attribute.ns, attribute.name) == Utf16ToUtf8(wanted);
  }

  CDomNode& m_node;
};

/// The empty list, which most elements return when asked for child elements. All share one.
class CEmptyNodeList final : public IXMLDOMNodeList {
 public:
  HRESULT QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    return iid == IID_IUnknown || iid == IID_IXMLDOMNodeList ? Answer(this, object) : RefuseInterface(object);
  }

  // It is never destroyed, so nothing is counted.
  ULONG AddRef() override { return 1; }
  ULONG Release() override { return 1; }

  HRESULT get_item(LONG, IXMLDOMNode** node) override {
    if (node == nullptr) return E_INVALIDARG;
    *node = nullptr;
    return S_FALSE;
  }

  HRESULT get_length(LONG* length) override {
    if (length == nullptr) return E_INVALIDARG;
    *length = 0;
    return S_OK;
  }
};

/// An element or an attribute or, where an XPath reaches it, the document. It is part of an object that counts the
/// references to it, so that the nodes of a list need no memory of their own. It is never deleted through an interface,
/// and moved only into the place where a list keeps it.
// NOLINTNEXTLINE(cppcoreguidelines-virtual-class-destructor,cppcoreguidelines-special-member-functions)
class CDomNode final : public CNodeCalls<IXMLDOMElement> {
 public:
  /// \param owner counts the references
  /// \param state the owner's
  CDomNode(IUnknown& owner, const StatePointer& state, xmlNode* node)
      : CNodeCalls(state, node), m_owner(owner), m_attributes(*this) {}
  CDomNode(CDomNode&& other) noexcept : CDomNode(other.m_owner, other.State(), other.Node()) {}
  ~CDomNode() = default;

  HRESULT QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    if (iid == kNodeBehind) {
      // Not an interface, so it is not counted.
      *object = this;
      return S_OK;
    }
    const bool isMine = iid == IID_IUnknown || iid == IID_IXMLDOMNode || (iid == IID_IXMLDOMElement && IsElement());
    return isMine ? Answer(this, object) : RefuseInterface(object);
  }

  ULONG AddRef() override { return m_owner.AddRef(); }
  ULONG Release() override { return m_owner.Release(); }

  HRESULT get_attributes(IXMLDOMNamedNodeMap** attributes) override {
    if (attributes == nullptr || !IsElement()) return CNodeCalls::get_attributes(attributes);
    AddRef();
    *attributes = &m_attributes;
    return S_OK;
  }

 private:
  bool IsElement() const { return Node()->type == XML_ELEMENT_NODE; }

  IUnknown& m_owner;
  CDomAttributes m_attributes;
};

ULONG CDomAttributes::AddRef() { return m_node.AddRef(); }

ULONG CDomAttributes::Release() { return m_node.Release(); }

HRESULT CDomAttributes::getNamedItem(BSTR name, IXMLDOMNode** attribute) {
  if (attribute == nullptr) return E_INVALIDARG;
  *attribute = nullptr;
  if (name == nullptr) return E_INVALIDARG;
  return Guarded([&] {
    const std::wstring_view wanted(name, SysStringLen(name));
    for (xmlAttr* candidate = m_node.Node()->properties; candidate != nullptr; candidate = candidate->next) {
      if (!IsNamed(*candidate, wanted)) continue;
      *attribute = MakeNode(m_node.State(), reinterpret_cast<xmlNode*>(candidate)).Detach();
      return S_OK;
    }
    return S_FALSE;
  });
}

/// A list and its nodes, which share the list's reference count.
class CDomNodeList final : public CCounted<IXMLDOMNodeList> {
 public:
  CDomNodeList(StatePointer state, const std::vector<xmlNode*>& nodes) : m_state(std::move(state)) {
    m_nodes.reserve(nodes.size());
    for (xmlNode* node : nodes) m_nodes.emplace_back(*this, m_state, node);
  }

  HRESULT QueryInterface(REFIID iid, void** object) override {
    if (object == nullptr) return E_POINTER;
    return iid == IID_IUnknown || iid == IID_IXMLDOMNodeList ? Answer(this, object) : RefuseInterface(object);
  }

  HRESULT get_item(LONG index, IXMLDOMNode** node) override {
    if (node == nullptr) return E_INVALIDARG;
    *node = nullptr;
    if (index < 0 || static_cast<std::size_t>(index) >= m_nodes.size()) return S_FALSE;
    AddRef();
    *node = &m_nodes[static_cast<std::size_t>(index)];
    return S_OK;
  }

  HRESULT get_length(LONG* length) override {
    if (length == nullptr) return E_INVALIDARG;
    *length = static_cast<LONG>(m_nodes.size());
    return S_OK;
  }

 private:
  StatePointer m_state;
  std::vector<CDomNode> m_nodes;
};

/// A node that is not in a list.
class CSingleNode final : public CCounted<IUnknown> {
 public:
  CSingleNode(StatePointer state, xmlNode* node) : m_state(std::move(state)), m_node(*this, m_state, node) {}

  HRESULT QueryInterface(REFIID iid, void** object) override { return m_node.QueryInterface(iid, object); }

  CDomNode& Node() { return m_node; }

 private:
  StatePointer m_state;
  CDomNode m_node;
};

/// The parsed path when the expression is one; else null.
const CChildPath* FindPath(const DocumentState& state, std::wstring_view xpath) {
  if (state.lastXPath != xpath || xpath.empty()) {
    state.lastXPath.clear();
    state.lastPath = CChildPath::Parse(Utf16ToUtf8(xpath), state.prefixes);
    state.lastXPath = xpath;
  }
  return state.lastPath ? &*state.lastPath : nullptr;
}

/// Selects from a node; a list too long for COM to count is reported as out of memory.
std::vector<xmlNode*> Select(const DocumentState& state, xmlNode* from, std::wstring_view xpath, HRESULT& result) {
  std::vector<xmlNode*> nodes;
  if (const CChildPath* path = FindPath(state, xpath); path != nullptr) {
    path->Select(*from, nodes);
  } else {
    switch (SelectByXPath(from, Utf16ToUtf8(xpath), state.prefixes, nodes)) {
      case Outcome::Found: break;
      case Outcome::BadExpression: result = E_FAIL; break;
      case Outcome::OutOfMemory: result = E_OUTOFMEMORY; break;
    }
  }
  if (nodes.size() > static_cast<std::size_t>(std::numeric_limits<LONG>::max())) result = E_OUTOFMEMORY;
  return nodes;
}

}  // namespace

BSTR MakeBstr(std::string_view utf8) {
  if (utf8.size() > std::numeric_limits<UINT>::max()) _com_issue_error(E_OUTOFMEMORY);
  BSTR text = SysAllocStringLen(nullptr, static_cast<UINT>(utf8.size()));
  if (text == nullptr) _com_issue_error(E_OUTOFMEMORY);
  if (zotext::CopyAscii(utf8, text)) return text;
  SysFreeString(text);
  return CBstr(Utf8ToUtf16(utf8)).Detach();
}

DOMElementPtr MakeNode(const StatePointer& state, xmlNode* node) {
  return DOMElementPtr(&(new CSingleNode(state, node))->Node(), false);
}

const xmlNode* NodeBehind(IXMLDOMNode& node, const CXmlTree& tree) {
  void* object = nullptr;
  if (FAILED(node.QueryInterface(kNodeBehind, &object))) return nullptr;
  const auto& domNode = *static_cast<const CDomNode*>(object);
  return domNode.State()->tree.get() == &tree ? domNode.Node() : nullptr;
}

HRESULT SelectList(const StatePointer& state, xmlNode* from, BSTR xpath, IXMLDOMNodeList** nodes) {
  if (nodes == nullptr) return E_INVALIDARG;
  *nodes = nullptr;
  if (xpath == nullptr) return E_INVALIDARG;
  if (from == nullptr) return S_FALSE;
  static CEmptyNodeList emptyList;
  return Guarded([&] {
    HRESULT result = S_OK;
    const std::vector<xmlNode*> found = Select(*state, from, {xpath, SysStringLen(xpath)}, result);
    if (FAILED(result)) return result;
    *nodes = found.empty() ? static_cast<IXMLDOMNodeList*>(&emptyList) : new CDomNodeList(state, found);
    return result;
  });
}

HRESULT SelectFirst(const StatePointer& state, xmlNode* from, BSTR xpath, IXMLDOMNode** node) {
  if (node == nullptr) return E_INVALIDARG;
  *node = nullptr;
  if (xpath == nullptr) return E_INVALIDARG;
  if (from == nullptr) return S_FALSE;
  return Guarded([&] {
    HRESULT result = S_OK;
    const std::vector<xmlNode*> found = Select(*state, from, {xpath, SysStringLen(xpath)}, result);
    if (FAILED(result)) return result;
    if (found.empty()) return S_FALSE;
    *node = MakeNode(state, found.front()).Detach();
    return S_OK;
  });
}

}  // namespace libxml2

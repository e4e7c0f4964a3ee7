#include "libxml2/DomDocument.h"

#include "BaseUtilities/StringConvert.h"

#include <optional>
#include <string_view>
#include <utility>

namespace libxml2 {

namespace {

constexpr std::wstring_view kSelectionNamespaces = L"SelectionNamespaces";

std::wstring_view View(BSTR text) { return {text != nullptr ? text : L"", SysStringLen(text)}; }

}  // namespace

CDomDocument::CDomDocument() : CNodeCalls(m_state, nullptr), m_state(std::make_shared<const DocumentState>()) {}

void CDomDocument::SetTree(std::shared_ptr<const CXmlTree> tree) {
  m_state = std::make_shared<const DocumentState>(DocumentState{std::move(tree), m_state->prefixes, {}, {}});
  SetNode(Tree() != nullptr ? reinterpret_cast<xmlNode*>(Tree()->Document()) : nullptr);
}

HRESULT CDomDocument::QueryInterface(REFIID iid, void** object) {
  if (object == nullptr) return E_POINTER;
  const bool isMine = iid == IID_IUnknown || iid == IID_IXMLDOMNode || iid == IID_IXMLDOMDocument2;
  return isMine ? Answer(this, object) : RefuseInterface(object);
}

HRESULT CDomDocument::get_documentElement(IXMLDOMElement** root) {
  if (root == nullptr) return E_INVALIDARG;
  *root = nullptr;
  if (Tree() == nullptr) return S_FALSE;
  return Guarded([&] {
    *root = MakeNode(m_state, Tree()->Root()).Detach();
    return S_OK;
  });
}

HRESULT CDomDocument::setProperty(BSTR name, VARIANT value) {
  if (View(name) != kSelectionNamespaces || value.vt != VT_BSTR) return E_INVALIDARG;
  return Guarded([&]() -> HRESULT {
    std::wstring declarations(View(value.bstrVal));
    std::optional<Prefixes> prefixes = ParsePrefixes(Utf16ToUtf8(declarations));
    if (!prefixes) return E_INVALIDARG;
    m_state = std::make_shared<const DocumentState>(DocumentState{m_state->tree, std::move(*prefixes), {}, {}});
    m_selectionNamespaces = std::move(declarations);
    return S_OK;
  });
}

HRESULT CDomDocument::getProperty(BSTR name, VARIANT* value) {
  if (value == nullptr) return E_INVALIDARG;
  VariantInit(value);
  if (View(name) != kSelectionNamespaces) return E_INVALIDARG;
  return Guarded([&] {
    value->bstrVal = CBstr(m_selectionNamespaces).Detach();
    value->vt = VT_BSTR;
    return S_OK;
  });
}

}  // namespace libxml2

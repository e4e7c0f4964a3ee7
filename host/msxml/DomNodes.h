// The XML interfaces over a libxml2 tree.
#pragma once

#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"
#include "msxml/Selection.h"
#include "msxml/XmlTree.h"

#include <memory>
#include <optional>
#include <string>

namespace msxml {

/// What the nodes of one document share. It lives as long as any of them.
struct DocumentState {
  std::shared_ptr<const CXmlTree> tree;
  Prefixes prefixes;  // as they were when the node was selected

  // The expression that was asked for last, which mostly is the one asked for next.
  mutable std::wstring lastXPath;
  mutable std::optional<CChildPath> lastPath;
};
using StatePointer = std::shared_ptr<const DocumentState>;

/// A new object for the node, counted once; an element or an attribute.
/// \throws std::bad_alloc
DOMNodePtr MakeNode(const StatePointer& state, xmlNode* node);

/// The same for an element.
DOMElementPtr MakeElement(const StatePointer& state, xmlNode* element);

/// The libxml2 node behind a node that `MakeNode` made for that tree; null for any other.
const xmlNode* NodeBehind(IXMLDOMNode& node, const CXmlTree& tree);

/// Runs what may throw and gives the result that stands for it.
template <typename Action>
HRESULT Guarded(const Action& action) noexcept {
  try {
    return action();
  } catch (const _com_error& error) {
    return error.Error();
  } catch (const std::bad_alloc&) {
    return E_OUTOFMEMORY;
  } catch (...) {
    return E_FAIL;
  }
}

/// The text as a new BSTR.
/// \throws _com_error E_OUTOFMEMORY
BSTR MakeBstr(std::string_view utf8);

/// `selectNodes` and `selectSingleNode` from a node of a document.
HRESULT SelectList(const StatePointer& state, xmlNode* from, BSTR xpath, IXMLDOMNodeList** nodes);
HRESULT SelectFirst(const StatePointer& state, xmlNode* from, BSTR xpath, IXMLDOMNode** node);

}  // namespace msxml

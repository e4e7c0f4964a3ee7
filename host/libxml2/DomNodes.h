// The XML interfaces over a libxml2 tree.
#pragma once

#include "libxml2/Selection.h"
#include "libxml2/XmlTree.h"
#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"

#include <memory>
#include <optional>
#include <string>

namespace libxml2 {

/// What the nodes of one document share. It lives as long as any of them.
struct DocumentState {
  std::shared_ptr<const CXmlTree> tree;
  Prefixes prefixes;  // as they were when the node was selected

  // The last expression evaluated, which is usually the next one too.
  mutable std::wstring lastXPath;
  mutable std::optional<CChildPath> lastPath;
};
using StatePointer = std::shared_ptr<const DocumentState>;

/// Creates an object for an element or, if it is used as an IXMLDOMNode only, for any node.
/// \throws std::bad_alloc
DOMElementPtr MakeNode(const StatePointer& state, xmlNode* node);

/// The libxml2 node of a node that `MakeNode` created for that tree; null for any other.
const xmlNode* NodeBehind(IXMLDOMNode& node, const CXmlTree& tree);

/// Runs an action that may throw and returns the result code for its outcome.
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

/// `selectNodes` and `selectSingleNode` from a node of a document; null finds nothing.
HRESULT SelectList(const StatePointer& state, xmlNode* from, BSTR xpath, IXMLDOMNodeList** nodes);
HRESULT SelectFirst(const StatePointer& state, xmlNode* from, BSTR xpath, IXMLDOMNode** node);

}  // namespace libxml2

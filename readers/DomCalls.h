// The calls that the reader makes on XML documents, with exceptions for failures.
#pragma once

#include "msxml/ComTypes.h"
#include "msxml/MsXml.h"

#include <optional>
#include <string>

namespace vif {

// A call that fails throws `_com_error` with its result and the interface it was made on; a required pointer that is
// missing throws it with E_POINTER.

DOMNodeListPtr SelectNodes(IXMLDOMNode& node, const CBstr& xpath);

/// Empty when nothing is found.
DOMNodePtr SelectSingleNode(IXMLDOMNode& node, const CBstr& xpath);

LONG Length(IXMLDOMNodeList& nodes);

DOMNodePtr Item(IXMLDOMNodeList& nodes, LONG index);

/// The name without its prefix, in the system code page.
std::string LocalName(IXMLDOMNode& node);

/// The namespace as UTF-8; empty when there is none.
std::string Namespace(IXMLDOMNode& node);

/// The text content, in the system code page.
std::string Text(IXMLDOMNode& node);

/// The attribute as UTF-8; nothing when the element has none of that name.
std::optional<std::string> Attribute(IXMLDOMNode& element, const CBstr& name);

}  // namespace vif

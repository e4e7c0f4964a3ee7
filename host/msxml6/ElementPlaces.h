// Where elements of an MSXML document stand.
#pragma once

#include "msxml/MsXml.h"
#include "msxml6/TagScan.h"

#include <string>
#include <vector>

namespace msxml6 {

/// The start tag of an element; of an attribute, that of its element. Null for anything else.
/// \param tags those of the element's document
/// \throws _com_error
const Tag* FindTag(IXMLDOMNode& node, const std::vector<Tag>& tags);

/// The way to an element from the root, as `CDOMDoc::PathOf` gives it; empty for anything else.
/// \throws _com_error
std::string PathOfElement(IXMLDOMNode& node);

}  // namespace msxml6

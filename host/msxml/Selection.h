// Finds nodes by XPath.
#pragma once

#include "msxml/XmlTree.h"

#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace msxml {

/// The prefixes that XPath expressions use, each with its namespace.
using Prefixes = std::map<std::string, std::string, std::less<>>;

/// Takes declarations of the form xmlns:prefix='URI' (or with double quotes) apart, with white space between them;
/// nothing when the text has another form.
std::optional<Prefixes> ParsePrefixes(std::string_view declarations);

enum class Outcome { Found, BadExpression, OutOfMemory };

/// Puts the elements, attributes and the document that the expression finds from a node into a list, in document order.
/// A path of child steps such as `p:A/p:B` or `p:*` is answered from the children; anything else is libxml2's.
/// \param nodes is added to; whatever the outcome, what was in it stays
Outcome SelectNodes(xmlNode* from, std::string_view xpath, const Prefixes& prefixes, std::vector<xmlNode*>& nodes);

/// The same, always by libxml2.
Outcome SelectByXPath(xmlNode* from, std::string_view xpath, const Prefixes& prefixes, std::vector<xmlNode*>& nodes);

}  // namespace msxml

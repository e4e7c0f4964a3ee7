// The text of an element, as MSXML returns it with its default settings.
#pragma once

#include <libxml/tree.h>

#include <optional>
#include <string>
#include <string_view>

namespace libxml2 {

/// The text of all descendants joined in order, without comments and processing instructions.
///
/// Unless `xml:space="preserve"` is in force, a text that is all white space (space, tab, CR, LF) counts as one blank
/// if there is text before and after it inside the element, and as nothing elsewhere or between two CDATA sections.
/// White space at both ends of the result is removed, except that of a CDATA section.
std::string NodeText(const xmlNode& element);

/// The same text, as a view into the tree, if there is nothing to join and nothing to remove, which holds for nearly
/// all elements whose text is requested; else nothing.
std::optional<std::string_view> PlainText(const xmlNode& element);

}  // namespace libxml2

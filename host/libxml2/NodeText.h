// The text of an element, as MSXML gives it with its default settings.
#pragma once

#include <libxml/tree.h>

#include <optional>
#include <string>
#include <string_view>

namespace libxml2 {

/// The text of all descendants joined in order; comments and processing instructions are left out.
///
/// Where `xml:space="preserve"` is not in force, a text of nothing but white space (space, tab, CR, LF) counts as one
/// blank between what stands before and behind it inside the element, and as nothing elsewhere or between two CDATA
/// sections. White space at both ends of the whole is removed, but for that of a CDATA section, which stays.
std::string NodeText(const xmlNode& element);

/// The same where there is nothing to join and nothing to remove, as in nearly all elements that are asked for their
/// text: a part of the tree. Nothing elsewhere.
std::optional<std::string_view> PlainText(const xmlNode& element);

}  // namespace libxml2

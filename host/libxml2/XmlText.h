// libxml2's text: UTF-8 in unsigned characters.
#pragma once

#include <libxml/tree.h>

#include <cstddef>
#include <string>
#include <string_view>

namespace libxml2 {

/// The text, borrowed; null means empty.
inline std::string_view View(const xmlChar* text) {
  return text != nullptr ? std::string_view(reinterpret_cast<const char*>(text)) : std::string_view();
}

inline std::string_view Between(const xmlChar* begin, const xmlChar* end) {
  return {reinterpret_cast<const char*>(begin), static_cast<std::size_t>(end - begin)};
}

/// The value of an attribute, which is never in pieces: there are no document type declarations.
template <typename Attribute>
std::string_view AttributeValue(const Attribute& attribute) {
  return attribute.children != nullptr ? View(attribute.children->content) : std::string_view();
}

/// UTF-8 text as libxml2 expects it, borrowed. It must end in a NUL where libxml2 requires one.
inline const xmlChar* Xml(const char* text) { return reinterpret_cast<const xmlChar*>(text); }

/// Frees memory that libxml2 has allocated for the caller. Its function for that is a variable.
struct FreeXml {
  void operator()(void* memory) const { xmlFree(memory); }
};

/// The name with its prefix, if there is one.
inline std::string QualifiedName(const xmlChar* prefix, const xmlChar* name) {
  std::string text(View(prefix));
  if (!text.empty()) text += ':';
  return text.append(View(name));
}

/// The same for an element or an attribute.
inline std::string QualifiedName(const xmlNs* ns, const xmlChar* name) {
  return QualifiedName(ns != nullptr ? ns->prefix : nullptr, name);
}

}  // namespace libxml2

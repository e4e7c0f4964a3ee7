#include "msxml/TreeBuilder.h"

#include "msxml/XmlText.h"

#include <libxml/parserInternals.h>

#include <algorithm>
#include <limits>
#include <new>

namespace msxml {

namespace {

constexpr std::size_t kPointersOfNamespace = 2;
constexpr std::size_t kPointersOfAttribute = 5;

/// libxml2 counts the bytes of a text in an int.
constexpr std::size_t kLongestText = std::numeric_limits<int>::max();

/// An attribute and its value, which is a text node of its own.
struct ValuedAttribute {
  xmlAttr attribute;
  xmlNode value;
};

/// Copies the text, with a NUL behind it, to where there is room for it.
xmlChar* Put(std::string_view text, void* place) {
  auto* copy = static_cast<xmlChar*>(place);
  std::copy(text.begin(), text.end(), copy);
  copy[text.size()] = '\0';
  return copy;
}

}  // namespace

template <typename Object>
Object& CTreeBuilder::Make(std::size_t behind) {
  return *new (m_memory.allocate(sizeof(Object) + behind, alignof(Object))) Object{};
}

void CTreeBuilder::Begin(xmlNode& node, xmlElementType type, const xmlChar* name) const {
  node.type = type;
  node.name = name;
  node.doc = m_context.myDoc;
}

xmlNode& CTreeBuilder::MakeText(xmlElementType type, const xmlChar* name, std::string_view text) {
  auto& node = Make<xmlNode>(text.size() + 1);
  Begin(node, type, name);
  node.content = Put(text, &node + 1);
  return node;
}

/// Adds a node behind the last in the open element, or in the document when none is open.
void CTreeBuilder::Append(xmlNode& node) {
  EndText();
  xmlNode* parent = m_context.node;
  node.parent = parent != nullptr ? parent : reinterpret_cast<xmlNode*>(m_context.myDoc);
  xmlNode*& first = parent != nullptr ? parent->children : m_first;
  xmlNode*& last = parent != nullptr ? parent->last : m_last;
  node.prev = last;
  (last != nullptr ? last->next : first) = &node;
  last = &node;
}

xmlNode& CTreeBuilder::StartElement(const StartTag& tag) {
  auto& element = Make<xmlNode>();
  Begin(element, XML_ELEMENT_NODE, ElementName(tag));
  Append(element);
  AddNamespaces(element, tag);
  if (tag.uri != nullptr && element.ns == nullptr) element.ns = InheritNamespace(element, tag);
  AddAttributes(element, tag);
  if (nodePush(&m_context, &element) < 0) throw std::bad_alloc();
  return element;
}

void CTreeBuilder::EndElement() {
  EndText();
  nodePop(&m_context);
}

/// The local name; of an element whose prefix is declared nowhere, which the parser reports, all of it.
const xmlChar* CTreeBuilder::ElementName(const StartTag& tag) const {
  if (tag.prefix == nullptr || tag.uri != nullptr) return tag.name;
  const xmlChar* name = xmlDictQLookup(m_context.dict, tag.prefix, tag.name);
  if (name == nullptr) throw std::bad_alloc();
  return name;
}

void CTreeBuilder::AddNamespaces(xmlNode& element, const StartTag& tag) {
  xmlNs** place = &element.nsDef;
  for (std::size_t i = 0; i < tag.namespaceCount; ++i) {
    auto& declared = Make<xmlNs>();
    declared.type = XML_LOCAL_NAMESPACE;
    declared.prefix = tag.namespaces[i * kPointersOfNamespace];
    declared.href = tag.namespaces[i * kPointersOfNamespace + 1];
    *place = &declared;
    place = &declared.next;
    if (tag.uri != nullptr && declared.prefix == tag.prefix) element.ns = &declared;
  }
}

/// The declaration in force for an element that has none of its own. Mostly it is that of the element around.
xmlNs* CTreeBuilder::InheritNamespace(xmlNode& element, const StartTag& tag) const {
  xmlNs* outer = m_context.node != nullptr ? m_context.node->ns : nullptr;
  if (outer != nullptr && outer->prefix == tag.prefix) return outer;
  return SearchNamespace(element, tag.prefix, tag.uri);
}

/// \param uri null when no declaration is in force, which the parser reports
xmlNs* CTreeBuilder::SearchNamespace(xmlNode& element, const xmlChar* prefix, const xmlChar* uri) const {
  xmlNs* found = xmlSearchNs(m_context.myDoc, &element, prefix);
  if (found == nullptr && uri != nullptr) throw std::bad_alloc();  // the declaration of "xml" is made when asked for
  return found;
}

void CTreeBuilder::AddAttributes(xmlNode& element, const StartTag& tag) {
  xmlAttr* last = nullptr;
  for (std::size_t i = 0; i < tag.attributeCount; ++i) {
    xmlAttr& attribute = MakeAttribute(element, tag.attributes + i * kPointersOfAttribute);
    attribute.prev = last;
    (last != nullptr ? last->next : element.properties) = &attribute;
    last = &attribute;
  }
}

/// \param given the attribute as the parser hands it over
xmlAttr& CTreeBuilder::MakeAttribute(xmlNode& element, const xmlChar** given) {
  const std::string_view text = Between(given[3], given[4]);
  auto& made = Make<ValuedAttribute>(text.size() + 1);
  made.attribute.type = XML_ATTRIBUTE_NODE;
  made.attribute.name = given[0];
  made.attribute.parent = &element;
  made.attribute.doc = m_context.myDoc;
  made.attribute.children = made.attribute.last = &made.value;
  // Without a prefix an attribute is in no namespace.
  if (given[1] != nullptr) made.attribute.ns = SearchNamespace(element, given[1], given[2]);
  Begin(made.value, XML_TEXT_NODE, xmlStringText);
  made.value.parent = reinterpret_cast<xmlNode*>(&made.attribute);
  made.value.content = Put(text, &made + 1);
  return made.attribute;
}

void CTreeBuilder::AppendPiece(xmlElementType type, const xmlChar* name, std::string_view text) {
  xmlNode* open = m_context.node;
  if (open == nullptr) return;  // white space around the root
  xmlNode* last = open->last;
  if (last == nullptr || last->type != type) {
    Append(MakeText(type, name, text));
    return;
  }
  if (m_growing == nullptr) {
    m_growing = last;
    m_text = View(last->content);
  }
  if (text.size() > kLongestText - m_text.size()) throw std::bad_alloc();
  m_text += text;
}

/// Gives the text that has come in more than one piece to its node: memory that it outgrew in the pool would be kept.
void CTreeBuilder::EndText() {
  if (m_growing == nullptr) return;
  m_growing->content = Put(m_text, m_memory.allocate(m_text.size() + 1, 1));
  m_growing = nullptr;
}

void CTreeBuilder::AddText(std::string_view text) { AppendPiece(XML_TEXT_NODE, xmlStringText, text); }

void CTreeBuilder::AddCData(std::string_view text) { AppendPiece(XML_CDATA_SECTION_NODE, nullptr, text); }

void CTreeBuilder::AddComment(std::string_view text) { Append(MakeText(XML_COMMENT_NODE, xmlStringComment, text)); }

void CTreeBuilder::AddInstruction(const xmlChar* target, std::string_view text) {
  Append(MakeText(XML_PI_NODE, target, text));
}

void CTreeBuilder::Attach(xmlDoc& document) const {
  document.children = m_first;
  document.last = m_last;
}

}  // namespace msxml

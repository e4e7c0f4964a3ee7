#include "libxml2/ElementPlaces.h"

#include "TestUtilities/DOMDocReasons.h"
#include "libxml2/XmlText.h"

#include <algorithm>
#include <functional>
#include <map>
#include <string_view>
#include <utility>

namespace libxml2 {

namespace {

const xmlNode* ElementFrom(const xmlNode* node) {
  while (node != nullptr && node->type != XML_ELEMENT_NODE) node = node->next;
  return node;
}

/// The next element in the order of the start tags; null if none.
const xmlNode* NextElement(const xmlNode* element) {
  if (const xmlNode* child = ElementFrom(element->children); child != nullptr) return child;
  for (; element->type == XML_ELEMENT_NODE; element = element->parent) {
    if (const xmlNode* next = ElementFrom(element->next); next != nullptr) return next;
  }
  return nullptr;
}

}  // namespace

CElementPlaces::CElementPlaces(const CXmlTree& tree) {
  const std::vector<xmlfile::Tag> tags = xmlfile::FindTags(tree.File());
  m_elements.reserve(tags.size());
  auto tag = tags.begin();
  for (const xmlNode* node = tree.Root(); node != nullptr && ++tag != tags.end(); node = NextElement(node)) {
    m_elements.push_back({node, tag->place, 0});
  }
  std::sort(m_elements.begin(), m_elements.end(),
            [](const Element& a, const Element& b) { return std::less<>()(a.node, b.node); });
  for (const Element& element : m_elements) NumberChildren(*element.node);
}

std::size_t CElementPlaces::IndexOf(const xmlNode& element) const {
  const auto found = std::lower_bound(m_elements.begin(), m_elements.end(), &element,
                                      [](const Element& a, const xmlNode* b) { return std::less<>()(a.node, b); });
  return static_cast<std::size_t>(found - m_elements.begin());
}

void CElementPlaces::NumberChildren(const xmlNode& parent) {
  struct Siblings {
    Element* first;
    std::size_t count;
  };
  std::map<std::pair<std::string_view, std::string_view>, Siblings> siblings;
  for (const xmlNode* child = ElementFrom(parent.children); child != nullptr; child = ElementFrom(child->next)) {
    const std::string_view uri = child->ns != nullptr ? View(child->ns->href) : std::string_view();
    Element& element = m_elements[IndexOf(*child)];
    const auto [entry, isFirst] = siblings.try_emplace({uri, View(child->name)}, Siblings{&element, 1});
    if (isFirst) continue;
    entry->second.first->number = 1;
    element.number = ++entry->second.count;
  }
}

const xmlfile::Place* CElementPlaces::Find(const xmlNode* node) const {
  if (node != nullptr && node->type == XML_ATTRIBUTE_NODE) node = node->parent;
  if (node == nullptr || node->type != XML_ELEMENT_NODE) return nullptr;
  return &m_elements[IndexOf(*node)].place;
}

std::string CElementPlaces::PathOf(const xmlNode& element) const {
  const std::string step = PathStep(View(element.name), m_elements[IndexOf(element)].number);
  const xmlNode& parent = *element.parent;
  return parent.type == XML_ELEMENT_NODE ? PathOf(parent) + '/' + step : step;
}

}  // namespace libxml2

#include "msxml/ElementPaths.h"

#include "TestUtilities/DOMDocReasons.h"
#include "msxml/XmlText.h"

#include <map>
#include <string_view>
#include <utility>

namespace msxml {

CElementPaths::CElementPaths(const CXmlTree& tree) : m_numbers(tree.ElementCount() + 1) {
  std::vector<const xmlNode*> parents = {tree.Root()};
  while (!parents.empty()) {
    const xmlNode& parent = *parents.back();
    parents.pop_back();
    NumberChildren(parent);
    for (const xmlNode* child = parent.children; child != nullptr; child = child->next) {
      if (child->type == XML_ELEMENT_NODE) parents.push_back(child);
    }
  }
}

void CElementPaths::NumberChildren(const xmlNode& parent) {
  struct Siblings {
    std::uint32_t* first;
    std::uint32_t count;
  };
  std::map<std::pair<std::string_view, std::string_view>, Siblings> siblings;
  for (const xmlNode* child = parent.children; child != nullptr; child = child->next) {
    if (child->type != XML_ELEMENT_NODE) continue;
    const std::string_view uri = child->ns != nullptr ? View(child->ns->href) : std::string_view();
    std::uint32_t& number = m_numbers[CXmlTree::NumberOf(*child)];
    const auto [entry, isFirst] = siblings.try_emplace({uri, View(child->name)}, Siblings{&number, 1});
    if (isFirst) continue;
    *entry->second.first = 1;
    number = ++entry->second.count;
  }
}

std::string CElementPaths::PathOf(const xmlNode& element) const {
  const std::string step = PathStep(View(element.name), m_numbers[CXmlTree::NumberOf(element)]);
  const xmlNode& parent = *element.parent;
  return parent.type == XML_ELEMENT_NODE ? PathOf(parent) + '/' + step : step;
}

}  // namespace msxml

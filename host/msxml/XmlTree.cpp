#include "msxml/XmlTree.h"

namespace msxml {

const Position* CXmlTree::Locate(const xmlNode* node) const {
  if (node != nullptr && node->type == XML_ATTRIBUTE_NODE) node = node->parent;
  if (node == nullptr || node->type != XML_ELEMENT_NODE) return nullptr;
  const std::size_t number = NumberOf(*node);
  return number >= 1 && number <= m_positions.size() ? &m_positions[number - 1] : nullptr;
}

}  // namespace msxml

#include "msxml/XmlTree.h"

namespace msxml {

const Position* CXmlTree::Locate(const xmlNode* node) const {
  if (node != nullptr && node->type == XML_ATTRIBUTE_NODE) node = node->parent;
  if (node == nullptr || node->type != XML_ELEMENT_NODE) return nullptr;
  return &m_positions[NumberOf(*node) - 1];
}

}  // namespace msxml

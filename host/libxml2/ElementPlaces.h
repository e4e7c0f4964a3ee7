// The places of elements of a libxml2 tree in the file.
#pragma once

#include "libxml2/XmlTree.h"
#include "xmlfile/Places.h"

#include <cstddef>
#include <string>
#include <vector>

namespace libxml2 {

/// Finds the places of all elements of a tree and numbers them among their siblings, once, so that many queries are
/// fast.
class CElementPlaces {
 public:
  /// \param tree must outlive this object
  explicit CElementPlaces(const CXmlTree& tree);

  /// The place of an element of the tree; for an attribute, of its element. Null for anything else.
  const xmlfile::Place* Find(const xmlNode* node) const;

  /// The element's local name after those of its ancestors, each numbered from 1 where there are siblings of the same
  /// name and namespace: "VIF/Component[2]/SrcPdoList".
  /// \param element in the tree
  std::string PathOf(const xmlNode& element) const;

 private:
  struct Element {
    const xmlNode* node;
    xmlfile::Place place;
    std::size_t number;  // 0 where there is no such sibling
  };

  std::size_t IndexOf(const xmlNode& element) const;
  void NumberChildren(const xmlNode& parent);

  std::vector<Element> m_elements;  // sorted by the nodes' addresses
};

}  // namespace libxml2

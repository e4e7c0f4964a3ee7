// Where elements of a libxml2 tree stand.
#pragma once

#include "libxml2/XmlTree.h"
#include "xmlfile/Places.h"

#include <cstddef>
#include <string>
#include <vector>

namespace libxml2 {

/// Finds the places of a tree's elements, and numbers them among their siblings, once, so that asking for many of them
/// takes little time.
class CElementPlaces {
 public:
  /// \param tree must live as long
  explicit CElementPlaces(const CXmlTree& tree);

  /// Where an element of the tree stands; of an attribute, where its element does. Null for anything else.
  const xmlfile::Place* Find(const xmlNode* node) const;

  /// The element's local name after those of its ancestors, each with its number, from 1, where there are siblings of
  /// the same name and namespace: "VIF/Component[2]/SrcPdoList".
  /// \param element one of the tree
  std::string PathOf(const xmlNode& element) const;

 private:
  struct Element {
    const xmlNode* node;
    xmlfile::Place place;
    std::size_t number;  // 0 where there is no such sibling
  };

  std::size_t IndexOf(const xmlNode& element) const;
  void NumberChildren(const xmlNode& parent);

  std::vector<Element> m_elements;  // in the order of the nodes' addresses
};

}  // namespace libxml2

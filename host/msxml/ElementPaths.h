// Names elements by their way from the root.
#pragma once

#include "msxml/XmlTree.h"

#include <cstdint>
#include <string>
#include <vector>

namespace msxml {

/// Numbers the elements of a tree among their siblings, once, so that naming many of them takes no longer than the
/// names are.
class CElementPaths {
 public:
  explicit CElementPaths(const CXmlTree& tree);

  /// The element's local name behind those of its ancestors, each with its number, from 1, where there are siblings of
  /// the same name and namespace: "VIF/Component[2]/SrcPdoList".
  /// \param element one of the tree
  std::string PathOf(const xmlNode& element) const;

 private:
  void NumberChildren(const xmlNode& parent);

  std::vector<std::uint32_t> m_numbers;  // by the elements' own numbers; 0 where there is no such sibling
};

}  // namespace msxml

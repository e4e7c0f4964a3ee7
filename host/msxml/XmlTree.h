// A parsed XML document.
#pragma once

#include "msxml/TreeBuilder.h"

#include <libxml/tree.h>

#include <cstddef>
#include <cstdint>
#include <memory>
#include <utility>
#include <vector>

namespace msxml {

/// Where a start tag begins; both numbers from 1.
struct Position {
  std::uint32_t line;
  std::uint32_t column;
};

/// Frees a document, but not the nodes in it, which `CTreeBuilder` has put into memory of their own.
struct FreeDocument {
  void operator()(xmlDoc* document) const {
    document->children = document->last = nullptr;
    xmlFreeDoc(document);
  }
};
using DocumentPointer = std::unique_ptr<xmlDoc, FreeDocument>;

/// A libxml2 tree and where its elements stand in the file. Nothing changes it once it has been parsed.
class CXmlTree {
 public:
  /// \param memory where the document's nodes are
  /// \param positions of all elements; the `_private` member of each says which is its own (`NumberOf`)
  CXmlTree(std::unique_ptr<TreeMemory> memory, DocumentPointer document, std::vector<Position> positions)
      : m_memory(std::move(memory)), m_document(std::move(document)), m_positions(std::move(positions)) {}

  xmlDoc* Document() const { return m_document.get(); }
  xmlNode* Root() const { return xmlDocGetRootElement(m_document.get()); }

  std::size_t ElementCount() const { return m_positions.size(); }

  /// The element's number in the order of the start tags, from 1; 0 when it has none.
  static std::size_t NumberOf(const xmlNode& element) { return reinterpret_cast<std::uintptr_t>(element._private); }

  static void SetNumber(xmlNode& element, std::size_t number) {
    // libxml2 leaves this pointer to its users; a number in it costs nothing.
    element._private = reinterpret_cast<void*>(number);  // NOLINT(performance-no-int-to-ptr)
  }

  /// Where an element of this tree stands; of an attribute, where its element does. Null for anything else.
  const Position* Locate(const xmlNode* node) const;

 private:
  std::unique_ptr<TreeMemory> m_memory;
  DocumentPointer m_document;
  std::vector<Position> m_positions;
};

}  // namespace msxml

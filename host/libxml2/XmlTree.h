// A parsed XML document.
#pragma once

#include "xmlfile/FileText.h"

#include <libxml/tree.h>

#include <memory>
#include <utility>

namespace libxml2 {

/// Frees an object of libxml2 with the function for its type.
template <auto Free>
struct Freeing {
  template <typename Object>
  void operator()(Object* object) const {
    Free(object);
  }
};

using DocumentPointer = std::unique_ptr<xmlDoc, Freeing<xmlFreeDoc>>;

/// A libxml2 tree and the file that it was parsed from. Immutable once parsed.
class CXmlTree {
 public:
  CXmlTree(DocumentPointer document, xmlfile::FileText file)
      : m_document(std::move(document)), m_file(std::move(file)) {}

  xmlDoc* Document() const { return m_document.get(); }
  xmlNode* Root() const { return xmlDocGetRootElement(m_document.get()); }
  const xmlfile::FileText& File() const { return m_file; }

 private:
  DocumentPointer m_document;
  xmlfile::FileText m_file;
};

}  // namespace libxml2

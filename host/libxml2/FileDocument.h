// The document in a file, over libxml2.
#pragma once

#include "libxml2/DomDocument.h"
#include "libxml2/ElementPlaces.h"
#include "msxml/ComPointer.h"
#include "xmlfile/Problems.h"
#include "xmlfile/Root.h"
#include "xmlfile/SchemaSource.h"

#include <filesystem>
#include <memory>
#include <string>
#include <vector>

namespace libxml2 {

class CFileDocument {
 public:
  CFileDocument();

  IXMLDOMDocument2& Document() const { return *m_document; }

  /// Loads a file; if there are problems, the document is empty.
  void Load(const std::filesystem::path& file, xmlfile::CProblems& problems);

  bool IsLoaded() const { return m_document->Tree() != nullptr; }

  /// The root element of the document, which must be loaded.
  xmlfile::Root Root() const;

  /// The place of that element's start tag.
  xmlfile::Place RootPlace() const;

  /// Adds the reasons why the document, which must be loaded, is not valid.
  void Validate(const std::vector<xmlfile::SchemaSource>& schemas, xmlfile::CProblems& problems) const;

  /// The place of the start tag of a node's element; line 0 when the node is not in this document.
  xmlfile::Place Locate(IXMLDOMNode& node);

  /// The path of an element; empty when it is not in this document.
  std::string PathOf(IXMLDOMNode& node);

 private:
  const CElementPlaces& Places();

  CComPointer<CDomDocument> m_document;
  std::unique_ptr<const CElementPlaces> m_places;  // created on first use
};

}  // namespace libxml2

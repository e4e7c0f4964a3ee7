// The document in a file, over MSXML 6.
#pragma once

#include "msxml/MsXml.h"
#include "msxml6/ElementPlaces.h"
#include "xmlfile/FileText.h"
#include "xmlfile/Problems.h"
#include "xmlfile/Root.h"
#include "xmlfile/SchemaSource.h"

#include <filesystem>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace msxml6 {

class CFileDocument {
 public:
  /// \throws _com_error when there is no MSXML 6 or COM is not initialised on this thread
  CFileDocument();

  IXMLDOMDocument2& Document() const { return *m_document; }

  /// Loads a file; if there are problems, the document is empty.
  /// \throws _com_error
  void Load(const std::filesystem::path& file, xmlfile::CProblems& problems);

  bool IsLoaded() const { return m_file.has_value(); }

  /// The root element of the document, which must be loaded.
  xmlfile::Root Root() const;

  /// The place of that element's start tag.
  xmlfile::Place RootPlace() const;

  /// Adds the reason why the document, which must be loaded, is not valid.
  void Validate(const std::vector<xmlfile::SchemaSource>& schemas, xmlfile::CProblems& problems) const;

  /// The place of the start tag of a node's element; line 0 when the node is not in this document.
  xmlfile::Place Locate(IXMLDOMNode& node);

  /// The path of an element; empty when it is not in this document.
  std::string PathOf(IXMLDOMNode& node);

 private:
  CElementPlaces& Places();

  DOMDocument2Ptr m_document;
  std::optional<xmlfile::FileText> m_file;   // the text that the document was loaded from
  std::unique_ptr<CElementPlaces> m_places;  // created on first use
};

}  // namespace msxml6

// The document in a file, as the system's XML library holds it.
#pragma once

#include "msxml/MsXml.h"
#include "xmlfile/Places.h"
#include "xmlfile/Problems.h"
#include "xmlfile/SchemaSource.h"

#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace xmlfile {

struct Root {
  std::string name;  ///< local name
  std::string uri;   ///< the namespace; empty if none
};

/// Every function may throw `_com_error` on Windows.
class CFileDocument {
 public:
  CFileDocument();
  CFileDocument(const CFileDocument&) = delete;
  CFileDocument& operator=(const CFileDocument&) = delete;
  ~CFileDocument();

  IXMLDOMDocument2& Document() const;

  /// Loads a file; if there are problems, the document is empty.
  void Load(const std::filesystem::path& file, CProblems& problems);

  /// The same for the content of a file.
  void Load(std::string_view content, CProblems& problems);

  bool IsLoaded() const;

  /// The root element of the document, which must be loaded.
  xmlfile::Root Root() const;

  /// The place of that element's start tag.
  Place RootPlace() const;

  /// Adds the reasons why the document, which must be loaded, is not valid.
  void Validate(const std::vector<SchemaSource>& schemas, CProblems& problems) const;

  /// The place of the start tag of a node's element; line 0 when the node is not in this document.
  Place Locate(IXMLDOMNode& node);

  /// The path of an element; empty when it is not in this document.
  std::string PathOf(IXMLDOMNode& node);

 private:
  struct Content;
  std::unique_ptr<Content> m_content;
};

}  // namespace xmlfile

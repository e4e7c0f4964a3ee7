// The host's XML document.
#pragma once

#include "BaseUtilities/HostExport.h"
#include "TestUtilities/DOMDocProblem.h"
#include "msxml/MsXml.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// An XML document that is validated against a set of schemas.
///
/// Files are treated as hostile: a document is not valid if it has a document type declaration or elements nested more
/// than 256 deep, or if it is not in a regular file. Nor is one that would take much more time than its size justifies:
/// with more than 1,000 attributes in a tag or 1,000 namespaces in scope, or with a text in very many pieces; or one in
/// an encoding, other than UTF-16, in which an ASCII byte may mean something else, such as Shift_JIS or GBK. Nothing
/// but the file and the schemas is read, and the network is never used: while a thread compiles schemas, it has its own
/// external entity loader in libxml2.
///
/// Use one object from one thread at a time. Any number of threads may use their own objects concurrently; they share
/// the compiled schemas, which are kept until the process ends or a schema file changes.
///
/// A schema may import the namespace of another schema of the set. It then gets that schema, whatever file the import
/// names.
///
/// On Windows, MSXML 6 parses and validates files of up to 1 GiB. COM must be initialised on the calling thread. The
/// reasons why a file is malformed or not valid are in MSXML's words; MSXML gives only the first one, and does not say
/// where a document is not valid. Schemas are compiled for each validation; a schema that has parts in files outside
/// the set is refused.
class ZO_API CDOMDoc {
 public:
  /// Creates an empty document. The schemas are not read until a file is validated.
  /// \param schemas the full path of each schema file and the namespace that it describes
  explicit CDOMDoc(const std::vector<std::pair<std::wstring, std::wstring>>& schemas);

  CDOMDoc(const CDOMDoc&) = delete;
  CDOMDoc& operator=(const CDOMDoc&) = delete;
  virtual ~CDOMDoc();

  /// Whether a file can be loaded as a document of this kind. The document itself does not change; if the file cannot
  /// be loaded, `Problems` says why.
  /// \param fileName the file
  /// \param rootName the required local name of the root element; empty for any
  /// \param validate whether the file must also be valid against the schemas, not only well-formed
  /// \throws CZoDOMDocException as `ValidateDoc`
  virtual bool CanLoadDoc(const std::wstring& fileName, const std::wstring& rootName, bool validate);

  /// Parses the file last passed to `ValidateDoc`, without reading the schemas. If that fails, or there has been no
  /// file, the document is empty; `Problems` says why.
  /// \return whether the file is well-formed and within the limits above
  virtual bool ParseDoc();

  /// Loads, parses and validates a file. A document that is well-formed but not valid can still be examined.
  /// \return false when the file is not valid or cannot be read; `Problems` says why
  /// \throws CZoDOMDocException "Couldn't load the schema <file>: <reason>" when a schema file is missing or broken,
  ///   and std::bad_alloc
  bool ValidateDoc(const std::filesystem::path& file);

  /// The same for the content of a file, in memory. `ParseDoc` has no file afterwards.
  bool ValidateContent(std::string_view content);

  /// The root element; empty when nothing has been loaded.
  DOMElementPtr GetRootElement() const;

  /// Why the last file was not valid, in the order found; empty when it was. Valid until the next call that loads
  /// something.
  const std::vector<DOMDocProblem>& Problems() const noexcept;

  /// Finds where the start tag of an element of this document is in its file: line and column, from 1. Except on
  /// Windows, the column is 0 where it is not known, as for some start tags that span several lines, and may be too
  /// large after an end tag on the same line whose name is not ASCII.
  /// \return false, with 0 for both, when the node is not in this document or the platform cannot tell
  bool Locate(IXMLDOMNode& node, std::size_t& line, std::size_t& column) const;

  /// The path of an element of this document from the root, such as "VIF/Component[2]/SrcPdoList": local names,
  /// numbered where the element has siblings of the same name and namespace, and cut after 100 bytes. Empty when the
  /// node is not in this document or the platform cannot tell.
  std::string PathOf(IXMLDOMNode& node) const;

  /// The full path of a schema file: in the directory set by `SetSchemaDirectory` if it exists there, else in the
  /// installed data directory if it exists there, else beside this library. If it exists in none of these, the path it
  /// would have in the first of them, so that an error can name it. If this library was loaded through symbolic links,
  /// the search for these directories starts at the link. A byte of a path that is not valid UTF-8 becomes the lone
  /// surrogate U+DC00 + byte.
  /// \param fileName its name; null means empty
  static std::wstring MakeFullSchemaPath(const wchar_t* fileName);

  /// Sets the directory to search first for schemas, for documents constructed from now on; empty for none. May be
  /// called from any thread.
  static void SetSchemaDirectory(const std::filesystem::path& directory);

 protected:
  /// The document's interface; never null, lives as long as this object.
  IXMLDOMDocument2& Document() const noexcept;

  /// Accepts only documents with this root element as valid. A schema cannot express that: it allows any element that
  /// it declares globally as the root.
  void RequireRoot(const std::wstring& namespaceUri, const std::wstring& localName);

 private:
  struct Content;
  std::unique_ptr<Content> m_content;
};

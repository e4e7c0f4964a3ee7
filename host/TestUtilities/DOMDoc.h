// The host's XML document.
#pragma once

#include "BaseUtilities/HostExport.h"
#include "TestUtilities/DOMDocProblem.h"
#include "msxml/MsXml.h"

#include <cstddef>
#include <filesystem>
#include <memory>
#include <string>
#include <utility>
#include <vector>

/// An XML document that is validated against a set of schemas.
///
/// Files are taken for hostile: a document with a document type declaration, with elements nested more than 256 deep,
/// or in anything but a regular file is not valid. Nor is one that would take much more time than its size justifies:
/// with more than 1,000 attributes in a tag or 1,000 namespaces in force, or with a text in very many pieces; or one in
/// an encoding in which a byte of ASCII may be something else, such as Shift_JIS or GBK, but for UTF-16. Nothing but
/// the file and the schemas is read, and never the network: while schemas are compiled, libxml2's external entity
/// loader is another for the thread that does it.
///
/// One object is for one thread at a time. Any number of threads may use objects of their own at once; compiled schemas
/// are shared between them and kept until the process ends, or until a schema file changes.
///
/// A schema may import the namespace of another schema of the set. It then gets that schema, whatever file the import
/// names.
///
/// On Windows, MSXML 6 parses and validates files of up to 1 GiB. COM must be initialised on the calling thread. MSXML
/// words the reasons why a file is malformed or not valid, gives the first one only, and does not say where a document
/// is not valid. Schemas are compiled for each validation, and those with parts in files outside the set are refused.
class ZO_API CDOMDoc {
 public:
  /// An empty document. The schemas are looked at when a file is validated.
  /// \param schemas the full path of each schema file and the namespace that it describes
  explicit CDOMDoc(const std::vector<std::pair<std::wstring, std::wstring>>& schemas);

  CDOMDoc(const CDOMDoc&) = delete;
  CDOMDoc& operator=(const CDOMDoc&) = delete;
  virtual ~CDOMDoc();

  /// Whether a file could be loaded as a document of this kind. The document itself stays as it is; `Problems` says
  /// afterwards why not.
  /// \param fileName the file
  /// \param rootName the local name that its root element must have; empty when any will do
  /// \param validate whether it must be valid by the schemas too, or only well-formed
  /// \throws CZoDOMDocException as `ValidateDoc`
  virtual bool CanLoadDoc(const std::wstring& fileName, const std::wstring& rootName, bool validate);

  /// Parses the file that `ValidateDoc` was last given, without looking at the schemas. When that fails, or no file has
  /// been given, the document is empty; `Problems` says why.
  /// \return whether it is well-formed and as said above
  virtual bool ParseDoc();

  /// Loads a file, parses it and validates it. A document that is well-formed but not valid is there to be looked at.
  /// \return false when it is not valid, or cannot be read; `Problems` says why
  /// \throws CZoDOMDocException "Couldn't load the schema <file>: <reason>" when a schema file is missing or broken,
  ///   and std::bad_alloc
  bool ValidateDoc(const std::filesystem::path& file);

  /// The root element; empty when nothing has been loaded.
  DOMElementPtr GetRootElement() const;

  /// Why the last file was not valid, in the order in which it was found; empty when it was. Valid until the next call
  /// that loads something.
  const std::vector<DOMDocProblem>& Problems() const noexcept;

  /// Finds out where an element of this document stands in its file: the line and the column of its start tag, from 1.
  /// Except on Windows, the column is 0 where it cannot be told, as for some start tags that go over several lines, and
  /// may be too large behind an end tag on the same line whose name is not ASCII.
  /// \return false, with 0 for both, when the node is none of this document or the platform does not tell
  bool Locate(IXMLDOMNode& node, std::size_t& line, std::size_t& column) const;

  /// Names an element of this document by its way from the root, such as "VIF/Component[2]/SrcPdoList": local names,
  /// each with its number where the element has siblings of the same name and namespace, and cut after 100 bytes. Empty
  /// when the node is none of this document or the platform does not tell.
  std::string PathOf(IXMLDOMNode& node) const;

  /// The full path of a schema file: in the directory set by `SetSchemaDirectory` if it is there, else in the installed
  /// data directory if it is there, else beside this library. When it is in none of these, the path that it would have
  /// in the first of them, so that an error can name it. Where symbolic links lead to this library, these are looked
  /// for from the link first. A byte of a path that is no part of valid UTF-8 is the lone surrogate U+DC00 + byte.
  /// \param fileName its name; null counts as empty
  static std::wstring MakeFullSchemaPath(const wchar_t* fileName);

  /// Sets the directory in which schemas are looked for first, for documents constructed from now on; empty for none.
  /// May be called from any thread.
  static void SetSchemaDirectory(const std::filesystem::path& directory);

 protected:
  /// The document's interface; never null, lives as long as this object.
  IXMLDOMDocument2& Document() const noexcept;

  /// Lets only documents be valid whose root element has this name. A schema cannot say that: by it, any element that
  /// it declares globally may be the root.
  void RequireRoot(const std::wstring& namespaceUri, const std::wstring& localName);

 private:
  struct Content;
  std::unique_ptr<Content> m_content;
};

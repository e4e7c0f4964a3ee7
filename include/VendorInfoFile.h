// A loaded Vendor Info File.
#pragma once

#include "VIFExport.h"
#include "VIFField.h"
#include "VIFFieldDefs.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <memory>
#include <tuple>
#include <vector>

class CVIFImpl;

namespace vif {
class CContentAccess;
}  // namespace vif

/// The result of a query for several fields: the sole owner of a list of copies, in the order of the file. It may
/// outlive the object that was queried. The list may be empty, but the pointer is never null. Keep it in a variable: in
/// `for (... : *vif.GetFields())` the list is destroyed before the loop begins.
using VifFieldList = std::unique_ptr<std::vector<CVIFField>, std::function<void(std::vector<CVIFField>*)>>;

/// The fields of one or more Vendor Info Files, in the order in which they were read.
///
///     CVendorInfoFile vif("charger.txt");
///     const VifFieldList fields = vif.GetFields();
///     for (const CVIFField& field : *fields) std::puts(field.MakeOutputString().get());
///
/// The file's extension, in any letter case, decides how it is read: ".txt" as a text VIF, which is one component,
/// ".xml" as an XML VIF. Components are numbered from 1 across all files loaded into the object.
///
/// Several threads may call `const` members of one object at once. While a thread appends to it, assigns to it, moves
/// from it or destroys it, no other may use it. A moved-from object is empty and may be used again, with the built-in
/// definitions.
///
/// \par Queries
/// A query is a name pattern and three slots; `CVIFField::Match` says which fields match it. The pattern is UTF-8, or
/// wide text, which is converted to UTF-8. Null or empty matches any name; a literal null must be nullptr, not NULL.
/// The slot (eVifLocSrcPdo, 2) matches source PDO 2, (eVifLocSrcPdo, INDEX_NOT_SPECIFIED) any source PDO, and
/// UNSPECIFIED_INDEX everything. Separate slots and an array of them mean the same.
///
/// \par
/// A query never changes the object, and its results are copies. The pattern is compiled at most once, when the first
/// field's locations match; a query whose locations match no field ignores it. Besides what is said below, every query
/// throws `std::regex_error` if it compiles the pattern and that is not a regular expression or is too complex (see
/// `CVIFField::Match`), and `std::bad_alloc`.
///
/// \par Groups
/// `GetComponent`, `GetRouter`, `GetSrcPdo` and the like return the fields of one group of the file, and of the groups
/// inside it. `INDEX_NOT_SPECIFIED` as a number matches any. Components, PDOs, SVIDs, modes and endpoints are numbered
/// from 1, USB4 routers from 0; in a text VIF the numbers are those written in the names.
class VIF_API CVendorInfoFile {
 public:
  /// An empty object: no fields, no file name, the built-in field definitions.
  CVendorInfoFile();

  /// Loads a file. An empty path, or a literal null, loads nothing and never fails. If reading a text file fails
  /// midway, the fields up to there are loaded and nothing is thrown; `CheckTextVif` reports the failure.
  /// \param fileName the path
  /// \param fieldDefs the definitions for resolving names of text VIFs, here and in later appends. Null means the built-in
  ///   table. The table is borrowed: it must outlive the object and its copies and must not change during a load. Names
  ///   may be of any length, unless one of the caller's own patterns has a back-reference or a look-ahead.
  ///
  /// Everything that loading throws is a `std::exception`.
  /// \throws CZoRunTimeException (BaseUtilities/Exceptions.h) "VIF Does not exist. (name: <path>)",
  ///   "Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)",
  ///   "Couldn't open Vendor Info File: <path>.", also for anything but a regular file,
  ///   "I/O read failure on Vendor Info File <path>: <reason>",
  ///   "Internal error - Unknown EVifLocation: <value>" (see `VifFieldDef::locations`),
  ///   "Invalid node depth: groupLists should only be nested 3 levels deep.",
  ///   or the text of a regular expression's error, which only the caller's own patterns can cause:
  ///   "The regular expression needs more stack than this thread has left." or
  ///   "The regular expression takes too many steps."
  /// \throws CVIFInvalidFile (VIFInvalidFile.h), which is a CZoRunTimeException and carries the reasons,
  ///   "<path> is not a valid Vendor Info File." if an XML file is not
  /// \throws CZoDOMDocException (BaseUtilities/Exceptions.h) for an XML file: "Couldn't load the schema <file>: <reason>"
  ///   if a schema is missing or broken; "Unexpected list element name: <name>" and
  ///   "ERROR:  Couldn't get node name.\r\n" if other schemas admit what the library cannot read;
  ///   "Vendor Info File Create Exception (file name: \"<path>\") - <reason>" if a call on the document fails,
  ///   as every call does on Windows while COM is not initialised
  /// \throws std::filesystem::filesystem_error if the file cannot be examined, because its name is too long or a
  ///   directory in its path is not searchable
  /// \throws std::bad_alloc
  CVendorInfoFile(const std::filesystem::path& fileName, std::vector<VifFieldDef>* fieldDefs = nullptr);

  /// Loads nothing, as an empty path does.
  CVendorInfoFile(std::nullptr_t, std::vector<VifFieldDef>* fieldDefs = nullptr);

  /// Holds copies of the given fields, with no file name and a component count of 0.
  CVendorInfoFile(const std::vector<CVIFField>& fields);

  /// An independent copy: fields, file name, definitions and component count.
  CVendorInfoFile(const CVendorInfoFile& other);

  /// Takes the other's content and leaves it empty.
  CVendorInfoFile(CVendorInfoFile&& other) noexcept;

  /// Copies the other's content. If memory runs out, this object is unchanged.
  CVendorInfoFile& operator=(const CVendorInfoFile& other);

  /// Swaps the two contents.
  CVendorInfoFile& operator=(CVendorInfoFile&& other) noexcept;

  ~CVendorInfoFile();

  /// Loads another file, with the definitions given at construction, and appends its fields to those already held. If
  /// the object has no file name yet, it takes this one. After a failure, what was read before it stays.
  /// \param fileName UTF-8; outside Windows any bytes that name a file. Null or empty does nothing.
  ///
  /// Throws what the constructor from a path throws, with one difference: for a failed call on an XML document,
  /// `_com_error` (<comdef.h> on Windows, msxml/ComError.h elsewhere), which is not a `std::exception`.
  void Append(const char* fileName);

  /// Appends copies of the given fields, which may be this object's own `Fields()`. The file name and the component
  /// count do not change.
  /// \throws std::bad_alloc if memory runs out. The object is then empty: it has also lost the fields it held, its file
  ///   name and its definitions
  void Append(const std::vector<CVIFField>& fields);

  /// The name of the first file loaded; empty if there was none, never null. Bytes that are not UTF-8 appear as U+FFFD.
  /// Valid until the object is changed or destroyed.
  const wchar_t* FileName() const noexcept;

  /// The number of fields held.
  std::size_t Count() const noexcept;

  /// The number of matching fields.
  std::size_t Count(const char* pattern, const VifIndex& index1, const VifIndex& index2, const VifIndex& index3) const;

  /// The same with a wide pattern.
  std::size_t Count(const wchar_t* pattern, const VifIndex& index1, const VifIndex& index2,
                    const VifIndex& index3) const;

  /// The same with the slots in an array.
  std::size_t Count(const char* pattern, const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The same with a wide pattern and the slots in an array.
  std::size_t Count(const wchar_t* pattern, const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The same for fields of any name.
  std::size_t Count(std::nullptr_t, const VifIndex& index1, const VifIndex& index2, const VifIndex& index3) const;

  /// The same for fields of any name, with the slots in an array.
  std::size_t Count(std::nullptr_t, const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// All fields held, without copying them. Valid until this object is changed or destroyed.
  const std::vector<CVIFField>& Fields() const noexcept;

  /// Copies of all fields held.
  VifFieldList GetFields() const;

  /// Copies of all matching fields.
  VifFieldList GetFields(const char* pattern, const VifIndex& index1, const VifIndex& index2,
                         const VifIndex& index3) const;

  /// The same with a wide pattern.
  VifFieldList GetFields(const wchar_t* pattern, const VifIndex& index1, const VifIndex& index2,
                         const VifIndex& index3) const;

  /// The same with the slots in an array.
  VifFieldList GetFields(const char* pattern, const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The same with a wide pattern and the slots in an array.
  VifFieldList GetFields(const wchar_t* pattern, const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The same for fields of any name.
  VifFieldList GetFields(std::nullptr_t, const VifIndex& index1, const VifIndex& index2, const VifIndex& index3) const;

  /// The same for fields of any name, with the slots in an array.
  VifFieldList GetFields(std::nullptr_t, const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The one matching field.
  /// \throws CZoRunTimeException "Couldn't find field in \"<file>\" that matched with \"<pattern>\"." or
  ///   "<n> fields in \"<file>\" matched with \"<pattern>\"."; an object without a file name is called "this VIF"
  CVIFField GetUniqueField(const char* pattern, const VifIndex& index1, const VifIndex& index2,
                           const VifIndex& index3) const;

  /// The same with a wide pattern.
  CVIFField GetUniqueField(const wchar_t* pattern, const VifIndex& index1, const VifIndex& index2,
                           const VifIndex& index3) const;

  /// The same with the slots in an array.
  CVIFField GetUniqueField(const char* pattern, const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The same with a wide pattern and the slots in an array.
  CVIFField GetUniqueField(const wchar_t* pattern, const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The same for fields of any name.
  CVIFField GetUniqueField(std::nullptr_t, const VifIndex& index1, const VifIndex& index2,
                           const VifIndex& index3) const;

  /// The same for fields of any name, with the slots in an array.
  CVIFField GetUniqueField(std::nullptr_t, const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The one matching field and true, or the empty field and false if none matches.
  /// \throws CZoRunTimeException "<n> fields in \"<file>\" matched with \"<pattern>\"." if more than one matches
  std::tuple<CVIFField, bool> GetSingleField(const char* pattern, const VifIndex& index1, const VifIndex& index2,
                                             const VifIndex& index3) const;

  /// The same with a wide pattern.
  std::tuple<CVIFField, bool> GetSingleField(const wchar_t* pattern, const VifIndex& index1, const VifIndex& index2,
                                             const VifIndex& index3) const;

  /// The same with the slots in an array.
  std::tuple<CVIFField, bool> GetSingleField(const char* pattern,
                                             const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The same with a wide pattern and the slots in an array.
  std::tuple<CVIFField, bool> GetSingleField(const wchar_t* pattern,
                                             const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// The same for fields of any name.
  std::tuple<CVIFField, bool> GetSingleField(std::nullptr_t, const VifIndex& index1, const VifIndex& index2,
                                             const VifIndex& index3) const;

  /// The same for fields of any name, with the slots in an array.
  std::tuple<CVIFField, bool> GetSingleField(std::nullptr_t,
                                             const std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>& query) const;

  /// Copies of the matching fields of the first component that has any. The component takes the first slot; `index2`
  /// and `index3` are the others.
  ///
  /// Only the component numbers 0 to `ComponentCount() - 1` are searched. Since components are numbered from 1, the one
  /// with the highest number is not: with one component loaded, nothing is found. Query that one by its number.
  VifFieldList GetFirstFields(const char* pattern, const VifIndex& index2, const VifIndex& index3) const;

  /// The same with a wide pattern.
  VifFieldList GetFirstFields(const wchar_t* pattern, const VifIndex& index2, const VifIndex& index3) const;

  /// The same for fields of any name.
  VifFieldList GetFirstFields(std::nullptr_t, const VifIndex& index2, const VifIndex& index3) const;

  /// The one field that `GetFirstFields` finds.
  /// \throws CZoRunTimeException "<n> fields in \"<pattern>\" matched with \"<pattern>\"." if it finds several
  /// \throws std::out_of_range "invalid vector subscript" if it finds none
  CVIFField GetFirstUniqueField(const char* pattern, const VifIndex& index2, const VifIndex& index3) const;

  /// The same with a wide pattern.
  CVIFField GetFirstUniqueField(const wchar_t* pattern, const VifIndex& index2, const VifIndex& index3) const;

  /// The same for fields of any name.
  CVIFField GetFirstUniqueField(std::nullptr_t, const VifIndex& index2, const VifIndex& index3) const;

  /// The number of components read so far from all files loaded, which is also the highest component number assigned.
  std::uint32_t ComponentCount() const noexcept;

  /// The fields of a component.
  VifFieldList GetComponent(VifIndexNumber component) const;

  /// The fields of a USB4 router of product 0.
  VifFieldList GetRouter(VifIndexNumber router) const;

  /// The fields of a PCIe endpoint of a USB4 router of product 0.
  VifFieldList GetPcieEndpointIds(VifIndexNumber router, VifIndexNumber endpoint) const;

  /// The fields of a source PDO.
  VifFieldList GetSrcPdo(VifIndexNumber component, VifIndexNumber pdo) const;

  /// The fields of a sink PDO.
  VifFieldList GetSnkPdo(VifIndexNumber component, VifIndexNumber pdo) const;

  /// The fields of an SOP SVID.
  VifFieldList GetSopSvid(VifIndexNumber component, VifIndexNumber svid) const;

  /// The fields of a mode of an SOP SVID.
  VifFieldList GetSopSvidMode(VifIndexNumber component, VifIndexNumber svid, VifIndexNumber mode) const;

  /// The fields of a cable SVID.
  VifFieldList GetCableSvid(VifIndexNumber component, VifIndexNumber svid) const;

  /// The fields of a mode of a cable SVID.
  VifFieldList GetCableSvidMode(VifIndexNumber component, VifIndexNumber svid, VifIndexNumber mode) const;

 private:
  // Lets the functions of VIFContent.h, VIFProgress.h and VIFPositions.h at the content.
  friend class vif::CContentAccess;

  CVIFImpl& Content();

  CVIFImpl* m_impl;  // owned; null after a move or a failed append, which counts as empty
};

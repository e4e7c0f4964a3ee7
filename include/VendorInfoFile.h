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
#include <vector>

class CVIFImpl;

/// The result of a query over several fields: the only owner of a list of copies, which outlives the object that
/// was asked. The list is empty at worst, never absent, and in the order of the file. Keep it in a variable: in
/// `for (... : *vif.GetFields())` the list is gone before the loop begins.
using VifFieldList = std::unique_ptr<std::vector<CVIFField>, std::function<void(std::vector<CVIFField>*)>>;

/// The fields of one or more Vendor Info Files, in the order in which they were read.
///
///     CVendorInfoFile vif("charger.txt");
///     const VifFieldList fields = vif.GetFields();
///     for (const CVIFField& field : *fields) std::puts(field.MakeOutputString().get());
///
/// A file's extension, in any letter case, says how it is read: ".txt" as a text VIF, which is one component,
/// ".xml" as an XML VIF. Components are numbered from 1 over all files loaded into the object.
///
/// Threads may call the `const` members of one object at once, as long as none changes it: appending to it,
/// assigning it and destroying it need it alone. A moved-from object is an empty one and may be used again.
class VIF_API CVendorInfoFile {
 public:
  /// No fields, no file name, the built-in field definitions.
  CVendorInfoFile();

  /// Loads a file. An empty path, or a literal null, loads nothing and fails in nothing.
  /// \param fieldDefs the definitions that the names of text VIFs are resolved through, here and in later appends;
  ///   borrowed, so it must outlive the object and its copies. Null means the built-in table.
  /// \throws CZoRunTimeException "VIF Does not exist. (name: <path>)",
  ///   "Invalid file type for VIF!  Must be text (*.txt) or XML (*.xml)",
  ///   "Couldn't open Vendor Info File: <path>.", which anything but a regular file gives too,
  ///   "I/O read failure on Vendor Info File <path>: <reason>",
  ///   "Internal error - Unknown EVifLocation: <value>" (see `VifFieldDef::locations`),
  ///   or the text of a regular expression's error, which only definitions of the caller's own can cause
  /// \throws std::filesystem::filesystem_error when the file cannot be found out about for another reason than
  ///   that it is not there
  CVendorInfoFile(const std::filesystem::path& fileName, std::vector<VifFieldDef>* fieldDefs = nullptr);
  CVendorInfoFile(std::nullptr_t, std::vector<VifFieldDef>* fieldDefs = nullptr);

  /// Copies of the given fields. No file name, and a component count of 0.
  CVendorInfoFile(const std::vector<CVIFField>& fields);

  /// An independent copy: fields, file name, definitions and component count.
  CVendorInfoFile(const CVendorInfoFile& other);

  /// Takes the other's content and leaves it empty.
  CVendorInfoFile(CVendorInfoFile&& other) noexcept;

  /// Copies the other's content. When memory runs out, this object stays as it was.
  CVendorInfoFile& operator=(const CVendorInfoFile& other);

  /// Swaps the two contents.
  CVendorInfoFile& operator=(CVendorInfoFile&& other) noexcept;

  ~CVendorInfoFile();

  /// Loads a further file behind the fields already held, with the definitions given at construction. The object
  /// takes the file's name if it has none yet. After a failure what was read before it stays.
  /// \param fileName UTF-8; outside Windows any bytes that name a file. Null or empty does nothing.
  /// \throws as the constructor from a path does
  void Append(const char* fileName);

  /// Appends copies of the given fields. The file name and the component count stay.
  /// \throws std::bad_alloc when memory runs out; the object is then empty, the fields held before included
  void Append(const std::vector<CVIFField>& fields);

  /// The name of the first file loaded, empty when there was none; never null. Bytes that are not UTF-8 appear as
  /// U+FFFD. Valid until the object is changed or destroyed.
  const wchar_t* FileName() const noexcept;

  /// The number of fields held.
  std::size_t Count() const noexcept;

  /// Copies of all fields held.
  VifFieldList GetFields() const;

  /// The number of components read so far from all files loaded, which is also the highest component number
  /// given out.
  std::uint32_t ComponentCount() const noexcept;

 private:
  CVIFImpl& Content();

  CVIFImpl* m_impl;  // owned; null, which stands for empty content, after a move or a failed append
};

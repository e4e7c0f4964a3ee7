// Reports how an XML VIF becomes fields.
#pragma once

#include "VIFExport.h"
#include "VIFField.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string>

/// What becomes of an element.
enum EVifElementFate : std::int32_t {
  eVifElementField = 0,         ///< it yields a field
  eVifElementNotRead = 1,       ///< it is a child of the root, but unknown there or not the first of its name; it is
                                ///< skipped with everything in it
  eVifElementGivesWay = 2,      ///< it is the application's vendor, name or version, and a description replaces it
  eVifElementEmpty = 3,         ///< it is a component or an item of a list, but contains no element of the VIF
  eVifElementForeign = 4,       ///< it is among elements of the VIF, but its namespace is neither the VIF's nor that of
                                ///< optional content; it is skipped with everything in it
  eVifElementNotUnderstood = 5  ///< it is a group that cannot be read; loading fails there
};

/// One element and its fate.
struct VifElementReport {
  EVifElementFate fate;    ///< what becomes of it
  std::size_t line;        ///< of its start tag, from 1; 0 where the platform does not tell
  std::size_t column;      ///< of its start tag, from 1; 0 where that cannot be told
  std::string path;        ///< such as "VIF/Component[2]/SrcPdoList/SrcPDO[1]/Src_PDO_Voltage"; a number where the
                           ///< element has siblings of its name, and only the beginning of a name that is very long
  const CVIFField* field;  ///< the field that it yields, valid during the call only; null when it yields none
};

/// Called for each element on the thread that reads the file.
using VifElementObserver = std::function<void(const VifElementReport&)>;

/// Reads an XML VIF as loading would. Reports every element that yields a field, in the order of the fields, and then
/// every element that loading skips, in the order of the file. When loading fails on a group, that group is reported
/// last.
///
/// The field that combines the application's vendor, name and version is reported for `VIF_App`. Optional content and
/// an empty product, which many files have, are not reported.
///
/// May be called from any number of threads at once, each with an observer of its own.
/// \param fileName the file, whatever its extension
/// \param observer receives each element; may be empty
/// \throws CVIFInvalidFile when the file is not a valid VIF; CZoRunTimeException or CZoDOMDocException when loading
///   fails on a group; CZoDOMDocException when a schema cannot be used; _com_error when a call on the document fails;
///   whatever the observer throws, which ends the reading
VIF_API void CheckXmlVif(const std::filesystem::path& fileName, const VifElementObserver& observer);

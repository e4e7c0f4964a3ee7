// Follows how an XML VIF becomes fields.
#pragma once

#include "VIFExport.h"
#include "VIFField.h"

#include <cstddef>
#include <filesystem>
#include <functional>
#include <string>

/// What became of one element of the VIF namespace.
struct VifElementReport {
  std::size_t line;        ///< of its start tag, from 1; 0 where the platform does not tell
  std::size_t column;      ///< of its start tag, from 1; 0 where the platform does not tell
  std::string path;        ///< such as "VIF/Component[2]/SrcPdoList/SrcPDO[1]/Src_PDO_Voltage"; a number where the
                           ///< element has siblings of its name
  const CVIFField* field;  ///< the field that it yields, valid during the call only; null when it yields none
};

/// Is told of elements on the thread that reads the file.
using VifElementObserver = std::function<void(const VifElementReport&)>;

/// Reads an XML VIF as loading it would and reports every element that yields a field, in the order of the fields, and
/// then every element that loading passes over:
///
/// - one directly under the root that is not known there, or not the first of its name, with all that is in it;
/// - the application's vendor, name or version beside a description, which is preferred to them;
/// - an item of a list or a component without any element in it (many a product has none, so that is not reported).
///
/// The field made of the application's vendor, name and version is reported for `VIF_App`. Elements of other
/// namespaces, such as optional content, are not reported.
///
/// \param observer is told of each; when it is empty, nobody is
/// \throws CVIFInvalidFile and the other exceptions of loading, _com_error included, and whatever the observer throws,
///   which ends the reading
VIF_API void CheckXmlVif(const std::filesystem::path& fileName, const VifElementObserver& observer);

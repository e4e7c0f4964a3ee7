// Reads a text VIF.
#pragma once

#include "FieldSink.h"
#include "VIFFieldDefs.h"
#include "VIFTextCheck.h"

#include <filesystem>
#include <istream>
#include <string>
#include <vector>

namespace vif {

/// Appends the fields of a text VIF, which is one component, to the sink. Lines that declare nothing are skipped;
/// the observer, if there is one, is told of them.
///
/// Fields that were appended before a failure stay, and the component stays counted.
/// \param path the file; only a regular file is read, as a directory, a pipe or a device may never end
/// \param table the definitions that names are resolved through, borrowed; null means the built-in table
/// \param observer may be null
/// \throws CZoRunTimeException with one of the messages
///   "CVIFImpl::ReadTextFile: Internal error: NULL file name.",
///   "Couldn't open Vendor Info File: <path>." (nothing appended, no component counted),
///   "I/O read failure on Vendor Info File <path>: <reason>",
///   "Internal error - Unknown EVifLocation: <value>", or the text of a regular expression's error
void ReadTextVif(const std::filesystem::path& path, const std::vector<VifFieldDef>* table, FieldSink sink,
                 const VifLineObserver* observer = nullptr);

/// The same from an open stream.
/// \param pathText the file's name for messages
void ReadTextVif(std::istream& stream, const std::string& pathText, const std::vector<VifFieldDef>* table,
                 FieldSink sink, const VifLineObserver* observer = nullptr);

}  // namespace vif

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

/// Appends the fields of a text VIF, which is one component, to the sink. Lines that declare nothing are skipped.
///
/// Fields that were appended before a failure stay, and the component stays counted.
/// \param path the file; only a regular file is read, as a directory, a pipe or a device may never end
/// \param table the definitions that names are resolved through, borrowed; null means the built-in table
/// \throws CZoRunTimeException with one of the messages
///   "CVIFImpl::ReadTextFile: Internal error: NULL file name.",
///   "Couldn't open Vendor Info File: <path>." (nothing appended, no component counted),
///   "I/O read failure on Vendor Info File <path>: <reason>",
///   "Internal error - Unknown EVifLocation: <value>", or the text of a regular expression's error
void ReadTextVif(const std::filesystem::path& path, const std::vector<VifFieldDef>* table, FieldSink sink);

/// The same from an open stream.
/// \param pathText the file's name for messages
void ReadTextVif(std::istream& stream, const std::string& pathText, const std::vector<VifFieldDef>* table,
                 FieldSink sink);

/// Who is told of what is found in a text VIF. Both are borrowed for the time of one read; either may be empty.
struct TextObservers {
  const VifLineObserver& lines;
  const VifFieldObserver& fields;
};

/// Reads a text VIF like `ReadTextVif`, as component 1, but keeps nothing: the observers are told.
/// \throws CZoRunTimeException as `ReadTextVif` does, and whatever an observer throws
void FollowTextVif(const std::filesystem::path& path, const std::vector<VifFieldDef>* table, TextObservers observers);

/// The same from an open stream.
void FollowTextVif(std::istream& stream, const std::string& pathText, const std::vector<VifFieldDef>* table,
                   TextObservers observers);

}  // namespace vif

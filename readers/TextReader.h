// Reads a text VIF.
#pragma once

#include "FieldSink.h"
#include "VIFFieldDefs.h"
#include "VIFTextCheck.h"
#include "VifSource.h"

#include <istream>
#include <string>
#include <vector>

namespace vif {

/// Appends the fields of a text VIF, which is one component, to the sink. Lines that declare nothing are skipped. After
/// a failure, the fields appended so far stay and the component stays counted.
/// \param source a regular file; anything else is refused, since a directory, a pipe or a device may never end; or bytes
/// \param table the definitions for resolving names, borrowed; null means the built-in table
/// \throws CZoRunTimeException with one of the messages
///   "CVIFImpl::ReadTextFile: Internal error: NULL file name.",
///   "Couldn't open Vendor Info File: <path>." (nothing appended, no component counted),
///   "I/O read failure on Vendor Info File <path>: <reason>",
///   "Internal error - Unknown EVifLocation: <value>", or the text of a regular expression's error
void ReadTextVif(const CVifSource& source, const std::vector<VifFieldDef>* table, FieldSink sink);

/// The same from an open stream.
/// \param pathText the file's name for messages
void ReadTextVif(std::istream& stream, const std::string& pathText, const std::vector<VifFieldDef>* table,
                 FieldSink sink);

/// Receive what is found in a text VIF. Both are borrowed for one read; either may be empty.
struct TextObservers {
  const VifLineObserver& lines;
  const VifFieldObserver& fields;
};

/// Reads a text VIF as `ReadTextVif` does, as component 1, but keeps no field: it reports to the observers instead.
/// \throws CZoRunTimeException as `ReadTextVif` does, and whatever an observer throws
void FollowTextVif(const CVifSource& source, const std::vector<VifFieldDef>* table, TextObservers observers);

/// The same from an open stream.
void FollowTextVif(std::istream& stream, const std::string& pathText, const std::vector<VifFieldDef>* table,
                   TextObservers observers);

}  // namespace vif

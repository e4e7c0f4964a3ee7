// Reports how a text VIF becomes fields, and which lines loading skips.
#pragma once

#include "VIFExport.h"
#include "VIFField.h"
#include "VIFFieldDefs.h"

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <functional>
#include <string_view>
#include <vector>

/// Why a line is reported.
enum EVifLineProblem : std::int32_t {
  eVifLineNotUnderstood = 0,  ///< it matches neither form of a declaration and yields no field
  eVifLineUnknownName = 1,    ///< it yields a field, but no definition knows the name, so the field has no location
  eVifLineReadFailed = 2,     ///< the file could not be read from here on; the text is empty
};

/// A line with a problem. Blank lines and comments have none.
struct VifLineReport {
  std::size_t line;          ///< its number, from 1
  std::string_view text;     ///< its bytes, NULs included, with surrounding blanks trimmed; valid during the call only
  EVifLineProblem problem;   ///< what is wrong with it
  std::string_view content;  ///< the part of the text that is read as a declaration, without the trailing comment;
                             ///< valid during the call only
};

/// Called for each such line, in the order of the file, on the thread that reads it.
using VifLineObserver = std::function<void(const VifLineReport&)>;

/// Called for each field with the number, from 1, of the line that yields it, in the order of the file, on the thread
/// that reads it. The field is valid during the call only.
using VifFieldObserver = std::function<void(std::size_t line, const CVIFField& field)>;

/// Reads a text VIF as loading would, and reports every line that loading skips without an error, every name that no
/// definition knows, and every field. A `$Name` counts as known when `Name` is.
///
/// The file is component 1. No field is kept, so a file of any length takes no more memory than its longest line needs.
/// May be called from any number of threads at once, each with observers of its own.
/// \param fileName the file, whatever its extension
/// \param observer receives the lines, an unknown name before its field; may be empty
/// \param fieldDefs the definitions for resolving names, borrowed for the call; null means the built-in table
/// \param fieldObserver receives the fields; may be empty
/// \throws CZoRunTimeException as loading does ("Couldn't open Vendor Info File: <path>." and so on); whatever an
///   observer throws, which ends the reading
VIF_API void CheckTextVif(const std::filesystem::path& fileName, const VifLineObserver& observer,
                          const std::vector<VifFieldDef>* fieldDefs = nullptr,
                          const VifFieldObserver& fieldObserver = nullptr);

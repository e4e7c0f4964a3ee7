// Follows how a text VIF becomes fields, and finds the lines that loading passes over.
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
  eVifLineNotUnderstood = 0,  ///< it fits neither form of a declaration and yields no field
  eVifLineUnknownName = 1,    ///< it yields a field, but no definition knows the name, so it is in no group
  eVifLineReadFailed = 2,     ///< the file could not be read on from here; the text is empty
};

/// One line that is neither blank nor a comment and has a problem.
struct VifLineReport {
  std::size_t line;          ///< its number, from 1
  std::string_view text;     ///< its bytes without the blanks around them, NUL and all; valid during the call only
  EVifLineProblem problem;   ///< what is wrong with it
  std::string_view content;  ///< the part of the text that is read as a declaration: without the comment and the
                             ///< blanks before it; valid during the call only
};

/// Is told of each such line, in the order of the file, on the thread that reads it.
using VifLineObserver = std::function<void(const VifLineReport&)>;

/// Is told of each field with the number of the line, from 1, that yields it, in the order of the file, on the thread
/// that reads it. The field is valid during the call only.
using VifFieldObserver = std::function<void(std::size_t line, const CVIFField& field)>;

/// Reads a text VIF as loading it would and reports every line that loading passes over without an error, every
/// name that no definition knows, and every field. A `$Name` counts as known when `Name` is.
///
/// The file is component 1. No field is kept, so a file of any length takes no more memory than its longest line.
/// \param observer is told of the lines, of an unknown name before its field; when it is empty, nobody is
/// \param fieldDefs the definitions to resolve names through, borrowed for the call; null means the built-in table
/// \param fieldObserver is told of the fields; when it is empty, none is made
/// \throws CZoRunTimeException as loading does ("Couldn't open Vendor Info File: <path>." and so on), and whatever
///   an observer throws, which ends the reading
VIF_API void CheckTextVif(const std::filesystem::path& fileName, const VifLineObserver& observer,
                          const std::vector<VifFieldDef>* fieldDefs = nullptr,
                          const VifFieldObserver& fieldObserver = nullptr);

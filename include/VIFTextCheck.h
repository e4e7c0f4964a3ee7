// Finds the lines of a text VIF that loading passes over.
#pragma once

#include "VIFExport.h"
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
  std::size_t line;         ///< its number, from 1
  std::string_view text;    ///< its bytes without the blanks around them, NUL and all; valid during the call only
  EVifLineProblem problem;  ///< what is wrong with it
};

/// Is told of each such line, in the order of the file, on the thread that reads it.
using VifLineObserver = std::function<void(const VifLineReport&)>;

/// Reads a text VIF as loading it would and reports every line that loading passes over without an error, and
/// every name that no definition knows. A `$Name` counts as known when `Name` is.
/// \param observer is told of each; when it is empty, nobody is
/// \param fieldDefs the definitions to resolve names through, borrowed for the call; null means the built-in table
/// \throws CZoRunTimeException as loading does ("Couldn't open Vendor Info File: <path>." and so on), and whatever
///   the observer throws, which ends the reading
VIF_API void CheckTextVif(const std::filesystem::path& fileName, const VifLineObserver& observer,
                          const std::vector<VifFieldDef>* fieldDefs = nullptr);

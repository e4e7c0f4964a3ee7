// The field definition table: every field name that the VIF format defines.
#pragma once

#include "VIFExport.h"
#include "VIFField.h"
#include "VIFLocations.h"

#include <array>
#include <regex>
#include <vector>

/// How a text VIF writes a field's name, and what that stands for.
struct VifFieldDef {
  /// The canonical name under which the field is stored, without index digits. Borrowed: it must outlive the
  /// definition. Null means the empty name.
  const wchar_t* name = nullptr;

  /// Matches the whole name as a text VIF writes it. Its first capture group gives the number of a Router, SrcPdo,
  /// SnkPdo, SopSvid or CableSvid, the second that of a RouterPcie, SopSvidMode or CableSvidMode. A group that does not
  /// exist, captures nothing or captures a number of more than 64 bits leaves `CVIFField::INDEX_NOT_SPECIFIED`.
  std::wregex pattern;

  /// The groups the field stands in, outermost first; `eVifLocUnset` is skipped. Any value that is not a location makes
  /// loading fail with "Internal error - Unknown EVifLocation: <value>" at the first name that the pattern matches.
  std::array<EVifLocation, CVIFField::MAX_INDEX_DEPTH> locations{};
};

namespace VifFieldDefs {

/// The built-in table: 271 definitions in a fixed order, built while the library is loaded and unchanged until
/// it is unloaded; always the same object. Copy it to change or extend it, and hand the copy to the
/// constructor of `CVendorInfoFile`. Throws nothing; may be called and read from any number of threads at once.
VIF_API const std::vector<VifFieldDef>& GetVifFieldDefs();

}  // namespace VifFieldDefs

// The field definition table: every field name that the VIF format defines.
#pragma once

#include "VIFExport.h"
#include "VIFField.h"
#include "VIFLocations.h"

#include <array>
#include <regex>
#include <vector>

/// One definition: how a text VIF writes a field's name, and what becomes of it.
struct VifFieldDef {
  /// The canonical name, under which the field is stored, without index digits. Not owned: it must outlive the
  /// definition. Null means the empty name.
  const wchar_t* name = nullptr;

  /// Recognises the name as a text VIF writes it; it must fit the whole name. Its first capture group gives the
  /// number of a Router, SrcPdo, SnkPdo, SopSvid or CableSvid, the second that of a RouterPcie, SopSvidMode or
  /// CableSvidMode. A group that does not exist, captures nothing or captures a number of more than 64 bits
  /// leaves the number at `CVIFField::INDEX_NOT_SPECIFIED`.
  std::wregex pattern;

  /// The groups the field stands in, outermost first; `eVifLocUnset` slots are skipped. A value beyond the known
  /// locations makes loading fail with "Internal error - Unknown EVifLocation: <value>" at the first name that
  /// the pattern fits.
  std::array<EVifLocation, CVIFField::MAX_INDEX_DEPTH> locations{};
};

namespace VifFieldDefs {

/// The built-in table: 271 definitions in a fixed order, built while the library is loaded and unchanged until
/// it is unloaded; always the same object. Copy it to change or extend it, and hand the copy to the
/// constructor of `CVendorInfoFile`. Throws nothing; may be called and read from any number of threads at once.
VIF_API const std::vector<VifFieldDef>& GetVifFieldDefs();

}  // namespace VifFieldDefs

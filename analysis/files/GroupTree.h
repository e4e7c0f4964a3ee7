// The groups of a file, derived from the places of its fields.
#pragma once

#include "FoundField.h"

#include <analysis/FieldText.h>

#include <cstdint>
#include <map>
#include <string_view>

namespace vifanalysis {

/// The place of the innermost group that a field is in.
GroupPlace GroupPlaceOf(const CVIFField& field);

/// The direct content of one group. It borrows the fields.
struct GroupContent {
  std::map<std::string_view, const FoundField*> fields;  ///< by name; the first of each name

  /// The first field of each inner group, by the group's kind and its number, which may be `INDEX_NOT_SPECIFIED`.
  std::map<EVifLocation, std::map<std::uint64_t, const FoundField*>> groups;
};

/// All groups with a field in them or in an inner group. The file as a whole is the group without slots.
using GroupTree = std::map<GroupPlace, GroupContent>;

GroupTree MakeGroupTree(const FoundFields& fields);

/// Whether a text file numbers the groups of that kind in the names of their fields.
bool IsNumberedByNames(EVifLocation kind);

}  // namespace vifanalysis

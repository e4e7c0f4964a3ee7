// The groups of a file, as the places of its fields have them.
#pragma once

#include "FoundField.h"

#include <array>
#include <cstdint>
#include <map>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// A group's slots, outermost first, the rest unused.
using GroupPlace = std::array<VifIndex, CVIFField::MAX_INDEX_DEPTH>;

/// What stands directly in one group. It borrows the fields.
struct GroupContent {
  std::map<std::string_view, const FoundField*> fields;  ///< by name; the first of each name

  /// The groups inside, by kind and then by number, which may be `INDEX_NOT_SPECIFIED`, with the first field of each.
  std::map<EVifLocation, std::map<std::uint64_t, const FoundField*>> groups;
};

/// All groups that have a field in them or in a group inside them; the file as a whole is the one without a slot.
std::map<GroupPlace, GroupContent> MakeGroupTree(const std::vector<FoundField>& fields);

/// Whether the groups of that kind get their numbers, in a text file, from the names of the fields in them.
bool IsNumberedByNames(EVifLocation kind);

}  // namespace vifanalysis

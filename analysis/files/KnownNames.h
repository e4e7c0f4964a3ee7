// Looks up names among the fields of the definition table.
#pragma once

#include <analysis/Vocabulary.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// The field of the definition table with that canonical name, null when there is none.
const FieldInfo* FindDefined(std::string_view canonicalName);

/// The field of the definition table that loading recognises by that name in a text file, null when there is none.
const FieldInfo* FindDefinedAsWritten(std::string_view writtenName);

/// How a file writes names: a text file with the indexes in them, an XML file without.
enum class NameStyle : std::uint8_t { Text, Xml };

/// The names of current fields that the written one may be a misspelling of: those with the fewest typos, in
/// alphabetical order, usually one or none. In the style of a text file they have the written indexes. A leading "$" is
/// kept.
std::vector<std::string> NearestNames(std::string_view writtenName, NameStyle style);

/// The place that the definition table gives a field, outermost group first, such as "Component · SrcPdo"; empty for no
/// group.
std::string PlaceText(const FieldInfo& field);

}  // namespace vifanalysis

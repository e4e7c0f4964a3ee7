// Looks up the names that the VIF format defines.
#pragma once

#include <VIFFieldDefs.h>

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace vifanalysis {

/// The built-in definition of a canonical name, null when there is none.
const VifFieldDef* FindDefinition(std::string_view canonicalName);

/// The built-in definition that recognises a name as a text file writes it, null when there is none.
const VifFieldDef* FindDefinitionOfWritten(std::string_view writtenName);

/// The definition's name with a `kIndexMark` wherever a text file writes an index, such as "SVID#_Mode#_Enter".
std::string SpellingOf(const VifFieldDef& definition);

/// How a file writes names: a text file with the indexes in them, an XML file without.
enum class NameStyle : std::uint8_t { Text, Xml };

/// The known names that the written one may be a misspelling of: those with the fewest typos, in alphabetical order,
/// usually one or none. In the style of a text file they have the written indexes. A leading "$" is kept.
std::vector<std::string> NearestNames(std::string_view writtenName, NameStyle style);

/// The place that a definition gives, outermost group first, such as "Component · SrcPdo"; empty for no group.
std::string PlaceText(const VifFieldDef& definition);

}  // namespace vifanalysis

// The names that the VIF format defines, to look up and to compare with.
#pragma once

#include <VIFFieldDefs.h>

#include <optional>
#include <string>
#include <string_view>

namespace vifanalysis {

/// The built-in definition of a canonical name, null when there is none.
const VifFieldDef* FindDefinition(std::string_view canonicalName);

/// The built-in definition that recognises a name as a text file writes it, null when there is none.
const VifFieldDef* FindDefinitionOfWritten(std::string_view writtenName);

/// The canonical name that a name may have been meant to be, if there is one near. Letter case and the digits of
/// indexes hardly count; a "$" before the name is taken to be right.
std::optional<std::string> NearestName(std::string_view name);

/// The place that a definition gives, outermost group first, such as "Component · SrcPdo"; empty for no group.
std::string PlaceText(const VifFieldDef& definition);

}  // namespace vifanalysis

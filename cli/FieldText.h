// Fields and locations as text.
#pragma once

#include <VIFField.h>

#include <string>

namespace cli {

/// The short name of a location, such as "SrcPdo".
std::string LocationName(const VifIndex& slot);

/// Whether the slot is in use.
bool IsUsed(const VifIndex& slot);

/// Whether the slot has a number.
bool HasNumber(const VifIndex& slot);

/// Whether the field is numeric and its value is a valid number.
bool HasNumber(const CVIFField& field);

/// The slot's number, or "?".
std::string NumberText(const VifIndex& slot);

/// The field's place, outermost group first, such as "Component 1 · SrcPdo 2", with "?" for a number that the file does
/// not give. Empty for a field in no group.
std::string LocationText(const CVIFField& field);

}  // namespace cli

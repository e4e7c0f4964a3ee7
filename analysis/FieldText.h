// Fields and locations as text.
#pragma once

#include <VIFField.h>
#include <analysis/Export.h>

#include <string>

namespace vifanalysis {

/// The short name of a location, such as "SrcPdo".
VIF_ANALYSIS_API std::string LocationName(const VifIndex& slot);

/// Whether the slot is in use.
VIF_ANALYSIS_API bool IsUsed(const VifIndex& slot);

/// Whether the slot has a number.
VIF_ANALYSIS_API bool HasNumber(const VifIndex& slot);

/// Whether the field is numeric and its value is a valid number.
VIF_ANALYSIS_API bool HasNumber(const CVIFField& field);

/// The slot's number, or "?".
VIF_ANALYSIS_API std::string NumberText(const VifIndex& slot);

/// The field's place, outermost group first, such as "Component 1 · SrcPdo 2", with "?" for a number that the file does
/// not give. Empty for a field in no group.
VIF_ANALYSIS_API std::string LocationText(const CVIFField& field);

}  // namespace vifanalysis

// The values and units of fields, as plain data. The rows of one field stand together in one table, values in rising
// order.
#pragma once

#include <analysis/Vocabulary.h>

#include <span>

namespace vifanalysis {

std::span<const FieldValue> PortValues();
std::span<const FieldValue> DataValues();
std::span<const FieldValue> PowerValues();
std::span<const FieldValue> IdentityValues();
std::span<const FieldValue> OtherValues();

/// NO and YES of every boolean field.
std::span<const FieldValue> BooleanValues();

std::span<const FieldUnit> Units();

}  // namespace vifanalysis

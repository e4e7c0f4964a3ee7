// What a field's number stands for, in units and words.
#pragma once

#include "rules/GroupView.h"

#include <analysis/Edition.h>
#include <analysis/FieldMeaning.h>

#include <string>

namespace vifanalysis {

/// What a field's number stands for, empty when that is no more than the number.
/// \param group the group of the field, whose supply type decides the units of a PDO
FieldMeaning MeaningOf(const FoundField& found, const CGroupView& group, const Edition& edition);

/// A group in a few words, such as "Fixed, 9 V, 3 A, 27 W"; empty when there are none.
std::string SummaryOf(const CGroupView& group);

}  // namespace vifanalysis

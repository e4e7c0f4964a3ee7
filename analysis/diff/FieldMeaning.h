// What a field's number stands for, in units and words.
#pragma once

#include "rules/GroupView.h"

#include <analysis/Edition.h>

#include <string>

namespace vifanalysis {

struct FieldMeaning {
  std::string text;          ///< "9 V", "Fixed", "YES"; empty when it is not known, or no more than the number
  bool isUncertain = false;  ///< whether that has low confidence
};

/// \param group the group of the field, whose supply type decides the units of a PDO
FieldMeaning MeaningOf(const FoundField& found, const CGroupView& group, const Edition& edition);

/// A group in a few words, such as "Fixed, 9 V, 3 A, 27 W"; empty when there are none.
std::string SummaryOf(const CGroupView& group);

}  // namespace vifanalysis

// What the value of a field stands for.
#pragma once

#include <VIFField.h>
#include <analysis/Export.h>
#include <analysis/Vocabulary.h>

#include <string>

namespace vifanalysis {

/// What a value stands for by the vocabulary, which is not what the file says about it.
struct FieldMeaning {
  std::string text;          ///< such as "Provider Only", "YES" or "3.3 A"; empty when there is nothing to say
  bool isUncertain = false;  ///< whether that has low confidence
};

/// The text of a field's value, or the amount that its number is. May be called from any number of threads at once.
/// \param field the field whose value it is
/// \param context the PDO that the field is in, if any, and the edition of the file
/// \throws std::bad_alloc
VIF_ANALYSIS_API FieldMeaning MeaningOf(const CVIFField& field, const PdoContext& context = {});

}  // namespace vifanalysis

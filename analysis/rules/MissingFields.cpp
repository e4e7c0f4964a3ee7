#include "rules/MissingFields.h"

#include "files/Sentence.h"

#include <analysis/Vocabulary.h>

#include <optional>

namespace vifanalysis {

bool IsMissing(const CComponentView& component, std::string_view name) {
  const std::optional<Edition>& edition = component.File().GetEdition();
  const FieldInfo* info = FindField(name).field;
  return !component.Has(name) && edition && info != nullptr && FitsEdition(*info, *edition) == EditionFit::Known;
}

std::string AreMissing(std::span<const std::string_view> names) {
  return Listed(names) + (names.size() == 1 ? " is missing" : " are missing");
}

}  // namespace vifanalysis

#include <analysis/FieldText.h>

namespace vifanalysis {

std::string LocationName(const VifIndex& slot) { return GetVifLocInfo(std::get<0>(slot)).name; }

bool IsUsed(const VifIndex& slot) { return std::get<0>(slot) != eVifLocUnset; }

bool HasNumber(const VifIndex& slot) { return std::get<1>(slot) != CVIFField::INDEX_NOT_SPECIFIED; }

bool HasNumber(const CVIFField& field) {
  return field.IsNumeric() && field.GetULongNumericValue() != CVIFField::VIF_VALUE_UNSET_64;
}

std::string NumberText(const VifIndex& slot) { return HasNumber(slot) ? std::to_string(std::get<1>(slot)) : "?"; }

std::string LocationText(const CVIFField& field) {
  std::string text;
  for (const VifIndex& slot : field.Indexes()) {
    if (!IsUsed(slot)) continue;
    if (!text.empty()) text += " \u00B7 ";
    text += LocationName(slot) + ' ' + NumberText(slot);
  }
  return text;
}

}  // namespace vifanalysis
